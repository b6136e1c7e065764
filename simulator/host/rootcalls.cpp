#include "rootcalls.h"

#include "carcontrolinterface.h"

#include <QStringList>

namespace RootCalls {

QList<Operation> const &all()
{
    // In the order of the interface's virtual table.
    static const QList<Operation> list = {
        {"setProtocolId", "i"},
        {"setReverse", "b"},
        {"setReverseSignalState", "b"},
        {"setRightDriver", "b"},
        {"setOtherProperty", "sv"},
        {"setData", "?v"},
        {"showDialogView", ""},
        {"showExView", ""},
        {"showExViewDialogView", ""},
        {"showUiRaise", ""},
        {"onAirConditionerVisibleChanged", "b"},
        {"onAirConditionerDataChanged", ""},
        {"onCardoorDataChanged", ""},
        {"onCarbodyDataChanged", ""},
        {"onRadarDataChanged", "r"},
        {"onTrajectoryDataChanged", "iib"},
    };
    return list;
}

Operation const *find(QString const &name)
{
    for (Operation const &op : all()) {
        if (name == QLatin1String(op.name))
            return &op;
    }
    return nullptr;
}

QString usage(Operation const &operation)
{
    QStringList parts{QStringLiteral("call"), QLatin1String(operation.name)};
    bool optional = false;
    for (char const *p = operation.parameters; *p; ++p) {
        QString part;
        switch (*p) {
        case '?': optional = true; continue;
        case 'i': part = QStringLiteral("NUMBER"); break;
        case 'b': part = QStringLiteral("true|false"); break;
        case 's': part = QStringLiteral("\"TEXT\""); break;
        case 'v': part = QStringLiteral("VALUE"); break;
        case 'r': part = QStringLiteral("[radar | int N]"); break;
        }
        parts << (optional ? QLatin1Char('[') + part + QLatin1Char(']') : part);
    }
    return parts.join(QLatin1Char(' '));
}

bool invoke(CarControlInterface *root, QString const &name, QVariantList const &args)
{
    const QVariant a0 = args.value(0);
    if (name == QLatin1String("setProtocolId")) {
        root->setProtocolId(a0.toInt());
    } else if (name == QLatin1String("setReverse")) {
        root->setReverse(a0.toBool());
    } else if (name == QLatin1String("setReverseSignalState")) {
        root->setReverseSignalState(a0.toBool());
    } else if (name == QLatin1String("setRightDriver")) {
        const bool right = a0.toBool();
        root->setRightDriver(right);
    } else if (name == QLatin1String("setOtherProperty")) {
        root->setOtherProperty(a0.toString(), args.value(1));
    } else if (name == QLatin1String("setData")) {
        root->setData(a0);
    } else if (name == QLatin1String("showDialogView")) {
        root->showDialogView();
    } else if (name == QLatin1String("showExView")) {
        root->showExView();
    } else if (name == QLatin1String("showExViewDialogView")) {
        root->showExViewDialogView();
    } else if (name == QLatin1String("showUiRaise")) {
        root->showUiRaise();
    } else if (name == QLatin1String("onAirConditionerVisibleChanged")) {
        root->onAirConditionerVisibleChanged(a0.toBool());
    } else if (name == QLatin1String("onAirConditionerDataChanged")) {
        root->onAirConditionerDataChanged();
    } else if (name == QLatin1String("onCardoorDataChanged")) {
        root->onCardoorDataChanged();
    } else if (name == QLatin1String("onCarbodyDataChanged")) {
        root->onCarbodyDataChanged();
    } else if (name == QLatin1String("onRadarDataChanged")) {
        if (args.isEmpty())
            root->onRadarDataChanged();
        else
            root->onRadarDataChanged(a0);
    } else if (name == QLatin1String("onTrajectoryDataChanged")) {
        root->onTrajectoryDataChanged(a0.toInt(), args.value(1).toInt(), args.value(2).toBool());
    } else {
        return false;
    }
    return true;
}

} // namespace RootCalls
