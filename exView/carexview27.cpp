#include "carexview27.h"

#include "appframework.h"
#include "canobj.h"
#include "customimagebutton.h"
#include "customimagewidget.h"
#include "imagepaths.h"
#include "tipdialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

const float PlateTextSize = 0.7f;
const float DialTextSize = 0.135f;

QString celsius(QString const &number)
{
    return number + QString::fromUtf8("\xE2\x84\x83");
}

QString fahrenheit(QString const &number)
{
    return number + QString::fromUtf8("\xE2\x84\x89");
}

int mainAreaHeight()
{
    return zorvappframework::UIManager::getMainAreaRect().height();
}

QLabel *makeLabel(QWidget *parent, QString const &name, QString const &text)
{
    QLabel *label = new QLabel(text, parent);
    label->setObjectName(name);
    return label;
}

CustomImageButton *makeButton(QWidget *parent, QString const &name)
{
    CustomImageButton *button = new CustomImageButton(parent);
    button->setObjectName(name);
    return button;
}

// A symbol with its value and unit beside it, the unit on the value's
// baseline side.
QHBoxLayout *symbolWithValue(CustomImageButton *symbol, QLabel *value, QLabel *unit)
{
    QHBoxLayout *valueRow = new QHBoxLayout;
    valueRow->addWidget(value);
    valueRow->addWidget(unit, 0, Qt::AlignBottom);
    QVBoxLayout *column = new QVBoxLayout;
    column->addStretch(1);
    column->addLayout(valueRow);
    column->addStretch(1);
    QHBoxLayout *layout = new QHBoxLayout;
    layout->addStretch(1);
    layout->addWidget(symbol);
    layout->addLayout(column);
    layout->addStretch(1);
    layout->setSpacing(10);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

// The unit label in the lower part of a dial.
void placeUnitOnDial(CustomImageButton *dial, QLabel *unit)
{
    QVBoxLayout *layout = new QVBoxLayout(dial);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(15);
    layout->addWidget(unit, 10, Qt::AlignTop | Qt::AlignHCenter);
}

void enable(QWidget *widget)
{
    if (!widget->isEnabled())
        widget->setEnabled(true);
}

} // namespace

CarExView27::CarExView27(QWidget *parent)
    : CarExViewBase(parent)
    , temperatureButton(0)
    , voltageButton(0)
    , speedButton(0)
    , rpmButton(0)
    , speedUnitLabel(0)
    , rpmUnitLabel(0)
    , carImage(0)
    , mileageButton(0)
    , remainButton(0)
    , mileageLabel(0)
    , mileageUnitLabel(0)
    , remainLabel(0)
    , remainUnitLabel(0)
    , topTitleImage(0)
    , topTitleDisabledImage(0)
    , roundImage(0)
    , roundDisabledImage(0)
    , pressedWidget(0)
{
    const int h = mainAreaHeight();

    // A stack lays out its pages alone: the cluster is its one page, which
    // holds the grid.
    QWidget *cluster = new QWidget(this);
    cluster->setObjectName(QStringLiteral("cluster"));
    addWidget(cluster);

    temperatureButton = makeButton(cluster, QStringLiteral("temperatureButton"));
    voltageButton = makeButton(cluster, QStringLiteral("voltageButton"));
    speedButton = makeButton(cluster, QStringLiteral("speedButton"));
    rpmButton = makeButton(cluster, QStringLiteral("rpmButton"));
    speedUnitLabel = makeLabel(speedButton, QStringLiteral("speedUnitLabel"), QStringLiteral("KM/H"));
    rpmUnitLabel = makeLabel(rpmButton, QStringLiteral("rpmUnitLabel"), QStringLiteral("RPM"));
    carImage = new CustomImageWidget(cluster);
    carImage->setObjectName(QStringLiteral("carImage"));
    mileageButton = makeButton(cluster, QStringLiteral("mileageButton"));
    remainButton = makeButton(cluster, QStringLiteral("remainButton"));
    mileageLabel = makeLabel(cluster, QStringLiteral("mileageLabel"), QStringLiteral("0"));
    mileageUnitLabel = makeLabel(cluster, QStringLiteral("mileageUnitLabel"), QStringLiteral("KM"));
    remainLabel = makeLabel(cluster, QStringLiteral("remainLabel"), QStringLiteral("0"));
    remainUnitLabel = makeLabel(cluster, QStringLiteral("remainUnitLabel"), QStringLiteral("L"));

    topTitleImage = new QImage(imagePath(ExtendedImages, QStringLiteral("toptitle.png")));
    topTitleDisabledImage = new QImage(imagePath(ExtendedImages, QStringLiteral("toptitle_dis.png")));
    roundImage = new QImage(imagePath(ExtendedImages, QStringLiteral("round.png")));
    roundDisabledImage = new QImage(imagePath(ExtendedImages, QStringLiteral("round_dis.png")));
    carImage->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("road_car.png")), true);

    temperatureButton->setConstBackgroundImage(topTitleImage, 0, 0, topTitleDisabledImage, true);
    voltageButton->setConstBackgroundImage(topTitleImage, 0, 0, topTitleDisabledImage, true);
    speedButton->setConstBackgroundImage(roundImage, 0, 0, roundDisabledImage, true);
    rpmButton->setConstBackgroundImage(roundImage, 0, 0, roundDisabledImage, true);
    mileageButton->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("mileage.png")), QString(),
                                      QString(), imagePath(ExtendedImages, QStringLiteral("mileage_dis.png")),
                                      true, 0);
    remainButton->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("remainL.png")), QString(),
                                     QString(), imagePath(ExtendedImages, QStringLiteral("remainL_dis.png")),
                                     true, 0);

    const int plateMargin = temperatureButton->width() / 8;
    temperatureButton->setTextMargins(0, 0, 0, plateMargin);
    voltageButton->setTextMargins(0, 0, 0, plateMargin);

    temperatureButton->setText(celsius(QStringLiteral("0")), Qt::AlignCenter, Qt::white, PlateTextSize, false);
    voltageButton->setText(QStringLiteral("0V"), Qt::AlignCenter, Qt::white, PlateTextSize, false);
    speedButton->setText(QStringLiteral("0.0"), Qt::AlignCenter, Qt::white, DialTextSize, true);
    rpmButton->setText(QStringLiteral("0.0"), Qt::AlignCenter, Qt::white, DialTextSize, true);

    const QString unitOnDial = QStringLiteral("color:rgba(255,255,255,180);font:%1px;").arg(h / 46);
    const QString value = QStringLiteral("color:rgb(255,255,255);font:%1px;").arg(h / 21);
    const QString unit = QStringLiteral("color:rgba(51,151,254,150);font:%1px;").arg(h / 30);
    speedUnitLabel->setStyleSheet(unitOnDial);
    rpmUnitLabel->setStyleSheet(unitOnDial);
    mileageLabel->setStyleSheet(value);
    remainLabel->setStyleSheet(value);
    mileageUnitLabel->setStyleSheet(unit);
    remainUnitLabel->setStyleSheet(unit);

    // Presses belong to the stack.
    temperatureButton->setIgnoreMouseEvent();
    voltageButton->setIgnoreMouseEvent();
    speedButton->setIgnoreMouseEvent();
    rpmButton->setIgnoreMouseEvent();
    mileageButton->setIgnoreMouseEvent();
    remainButton->setIgnoreMouseEvent();

    placeUnitOnDial(speedButton, speedUnitLabel);
    placeUnitOnDial(rpmButton, rpmUnitLabel);

    QGridLayout *grid = new QGridLayout(cluster);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(temperatureButton, 0, 2, 1, 1, Qt::AlignCenter);
    grid->addWidget(voltageButton, 0, 4, 1, 1, Qt::AlignCenter);
    grid->addWidget(speedButton, 0, 1, 2, 2, Qt::AlignLeft | Qt::AlignVCenter);
    grid->addWidget(rpmButton, 0, 4, 2, 2, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(carImage, 1, 1, 2, 5, Qt::AlignBottom | Qt::AlignHCenter);
    grid->addLayout(symbolWithValue(mileageButton, mileageLabel, mileageUnitLabel), 3, 2, 1, 1, Qt::AlignCenter);
    grid->addLayout(symbolWithValue(remainButton, remainLabel, remainUnitLabel), 3, 4, 1, 1, Qt::AlignCenter);
    const int rowStretches[] = {70, 310, 60, 45, 25};
    for (int row = 0; row < 5; ++row)
        grid->setRowStretch(row, rowStretches[row]);
    const int columnStretches[] = {40, 240, 190, 80, 190, 240, 40};
    for (int column = 0; column < 7; ++column)
        grid->setColumnStretch(column, columnStretches[column]);
}

CarExView27::~CarExView27()
{
    // The buttons paint from these pictures: they go first.
    delete temperatureButton;
    delete voltageButton;
    delete speedButton;
    delete rpmButton;
    delete topTitleImage;
    delete topTitleDisabledImage;
    delete roundImage;
    delete roundDisabledImage;
}

void CarExView27::setData(QVariant const &)
{
}

void CarExView27::refresh()
{
    CarbodyData const *body = CanObj::instance()->getCarbodyData();
    if (!body)
        return;

    if (body->temperatureUnit < 0) {
        // Disabled once: a repeated record doesn't write the text again.
        if (temperatureButton->isEnabled()) {
            temperatureButton->setEnabled(false);
            temperatureButton->setText(celsius(QStringLiteral("0")), Qt::AlignCenter,
                                       QColor(150, 150, 150, 255), PlateTextSize, false);
        }
    } else {
        enable(temperatureButton);
        // Celsius keeps a decimal, Fahrenheit doesn't.
        const QString text = body->temperatureUnit == 0
            ? celsius(QString::number(body->outsideTemperature / 10.0, 'f', 1))
            : fahrenheit(QString::number(body->outsideTemperature / 10));
        temperatureButton->setText(text, Qt::AlignCenter, Qt::white, PlateTextSize, false);
    }

    enable(voltageButton);
    voltageButton->setText(QString::number(body->batteryVoltage / 10.0, 'f', 1) + QLatin1Char('V'),
                           Qt::AlignCenter, Qt::white, PlateTextSize, false);

    enable(speedButton);
    speedButton->setText(QString::number(body->speed / 100.0, 'f', 1), Qt::AlignCenter, Qt::white,
                         DialTextSize, true);
    if (body->speedUnit == 0 || body->speedUnit2 == 0)
        speedUnitLabel->setText(QStringLiteral("KM/H"));
    else if (body->speedUnit == 1 || body->speedUnit2 == 1)
        speedUnitLabel->setText(QStringLiteral("MPH"));
    else
        speedUnitLabel->setText(QString());

    if (!rpmButton->isEnabled()) {
        rpmButton->setEnabled(true);
        rpmUnitLabel->setText(QStringLiteral("RPM"));
    }
    rpmButton->setText(QString::number(body->engineSpeed / 100.0, 'f', 2), Qt::AlignCenter, Qt::white,
                       DialTextSize, true);

    const QString value = QStringLiteral("QLabel{color:rgb(255,255,255);font:%1px;}");
    const QString unit = QStringLiteral("QLabel{color:rgba(51,151,254,150);font:%1px;}");
    if (!mileageButton->isEnabled()) {
        mileageButton->setEnabled(true);
        const int h = mainAreaHeight();
        mileageLabel->setStyleSheet(value.arg(h / 21));
        mileageUnitLabel->setStyleSheet(unit.arg(h / 30));
    }
    mileageLabel->setText(QString::number(body->distance));
    mileageUnitLabel->setText(body->distanceUnit == 1 ? QStringLiteral("Mile") : QStringLiteral("KM"));

    if (!remainButton->isEnabled()) {
        remainButton->setEnabled(true);
        const int h = mainAreaHeight();
        remainLabel->setStyleSheet(value.arg(h / 21));
        remainUnitLabel->setStyleSheet(unit.arg(h / 30));
    }
    remainLabel->setText(QString::number(body->remainingFuel));
}

QRect CarExView27::areaOf(QWidget const *widget) const
{
    return QRect(widget->mapTo(this, QPoint(0, 0)), widget->size());
}

bool CarExView27::isButton(QWidget const *widget) const
{
    return widget == temperatureButton || widget == voltageButton || widget == speedButton
        || widget == rpmButton || widget == mileageButton || widget == remainButton;
}

QWidget *CarExView27::getPressWidgetArea(QPoint const &pos) const
{
    if (areaOf(temperatureButton).contains(pos))
        return temperatureButton;
    if (areaOf(voltageButton).contains(pos))
        return voltageButton;
    if (areaOf(speedButton).contains(pos))
        return speedButton;
    if (areaOf(rpmButton).contains(pos))
        return rpmButton;
    if (areaOf(mileageButton).contains(pos) || areaOf(mileageLabel).contains(pos)
        || areaOf(mileageUnitLabel).contains(pos))
        return mileageButton;
    if (areaOf(remainButton).contains(pos) || areaOf(remainLabel).contains(pos)
        || areaOf(remainUnitLabel).contains(pos))
        return remainButton;
    return 0;
}

void CarExView27::mousePressEvent(QMouseEvent *event)
{
    pressedWidget = getPressWidgetArea(event->localPos().toPoint());
    event->accept();
}

// A release over the pressed button: a disabled one explains itself, an
// enabled one clears such a message.
void CarExView27::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget *released = getPressWidgetArea(event->localPos().toPoint());
    if (released && released == pressedWidget && isButton(released)) {
        if (!released->isEnabled())
            TipDialog::showMessage(tr("This model doesn't support this feature"), 0, false);
        else
            TipDialog::hideMessage();
    }
    event->accept();
}

void CarExView27::keyPressEvent(QKeyEvent *)
{
}

void CarExView27::focusInEvent(QFocusEvent *)
{
}
