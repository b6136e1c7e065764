#include "exview.h"

#include "appframework.h"
#include "basebar.h"
#include "basecontrol.h"
#include "canobj.h"
#include "carexviewbase.h"
#include "carinfoitem.h"
#include "carlog.h"
#include "catalogue.h"
#include "columnfit.h"
#include "frames.h"
#include "listdelegate0.h"
#include "listmodel0.h"
#include "listview.h"
#include "tirepressure.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QSharedPointer>

namespace {

// The head unit's back keys.
bool isBackKey(int key)
{
    return key == 0x0110002A || key == 0x0140000F;
}

// The frame that tells the car of the selected protocol that the tyre
// pressures are right, or an empty array where the car has no such reset.
QByteArray tyreResetFrame(int id)
{
    if (id == 28)
        return Frames::make2E(0xC6, {0x22, 0x01});
    if (id == 42)
        return Frames::make2E(0x83, {0x02, 0x01});
    if (id == 31 || id == 53)
        return Frames::make2E(0xC6, {0x11, 0x00});
    if (id == 64)
        return Frames::make2E(0x83, {0x0C, 0x01});
    if (id == 72)
        return Frames::make2E(0xC6, {0x04, 0x01, 0x01});
    return QByteArray();
}

} // namespace

ExView::ExView(QWidget *parent)
    : QWidget(parent)
    , baseBar(0)
    , stack(0)
    , listView(0)
    , listModel(0)
    , tirePressure(0)
    , backButton(0)
    , saverButton(0)
{
    using zorvappframework::UIManager;
    setGeometry(UIManager::getMainAreaRect());
    baseBar = BaseBarManager::createBaseBar(this, QString(), false, true, QString());
    baseBar->setObjectName(QStringLiteral("baseBar"));

    stack = createPageStack(CanObj::id(), this);
    if (stack)
        stack->setObjectName(QStringLiteral("stack"));

    listView = new ListView(this);
    listView->setObjectName(QStringLiteral("listView"));
    ColumnFit::install(listView);
    listModel = new ListModel0(this);
    listModel->setObjectName(QStringLiteral("listModel"));
    // The rows' height comes before the rows: set after them, it resizes
    // each row and repaints the list once more after its first paint.
    listView->verticalHeader()->setDefaultSectionSize(81);
    listView->setModel(listModel);
    listView->setItemDelegate(new ListDelegate0(this));
    if (stack)
        listModel->setListData(stack->getDatalist());
    const QRect systemView = UIManager::getSystemViewRect();
    const int inset = (baseBar->geometry().bottom() - baseBar->geometry().top() + 1) / 2;
    listView->setGeometry(systemView.adjusted(inset, 0, -inset, 0));

    connect(baseBar, SIGNAL(btnClickedSig(QString)), this, SLOT(onBaseBarClicked(QString)));
    if (stack) {
        stack->setGeometry(systemView);
        stack->hide();
        connect(stack, SIGNAL(sendData(QByteArray)), CanObj::instance(), SIGNAL(sendDataToCan(QByteArray)));
        connect(listView, SIGNAL(clicked(QModelIndex)), this, SLOT(onItemClicked(QModelIndex)));
        connect(stack, SIGNAL(TirePressure()), this, SLOT(TirePressureSolte()));
    }

    QSharedPointer<zorvappframework::Module> canbus
        = zorvappframework::ModuleManager::self()->module(QStringLiteral("canbus"));
    if (canbus)
        connect(canbus->signalObject(), SIGNAL(dataChanged()), this, SLOT(onCanDataChanged()));
}

ExView::~ExView()
{
    stack = 0;
    tirePressure = 0;
}

void ExView::setData(QVariant const &data)
{
    if (stack)
        stack->setData(data);
}

void ExView::refresh()
{
    if (stack)
        stack->refresh();
}

void ExView::TirePressureSolte()
{
    if (!tirePressure) {
        tirePressure = new TirePressure(this);
        tirePressure->setObjectName(QStringLiteral("tirePressure"));
        tirePressure->setGeometry(zorvappframework::UIManager::getSystemViewRect());
        connect(tirePressure, SIGNAL(ClickedSlots()), this, SLOT(TirePressureChanged()));
    }
    tirePressure->show();
    baseBar->setTitle(tr("tire pressure"));
    if (stack)
        stack->hide();
    if (listView)
        listView->hide();
}

void ExView::TirePressureChanged()
{
    const QByteArray frame = tyreResetFrame(CanObj::id());
    if (!frame.isEmpty())
        Frames::send(frame);
    if (tirePressure && tirePressure->isVisible())
        closeTirePressure();
}

void ExView::closeTirePressure()
{
    tirePressure->hide();
    if (stack)
        stack->show();
    else
        listView->show();
}

void ExView::keyPressEvent(QKeyEvent *event)
{
    if (isBackKey(event->key())) {
        BaseBarManager::emitBarBackSignal(baseBar);
        event->accept();
        return;
    }
    BaseControl::getInstance()->keyPressEvent(event);
}

void ExView::keyReleaseEvent(QKeyEvent *event)
{
    if (isBackKey(event->key())) {
        event->accept();
        return;
    }
    BaseControl::getInstance()->keyReleaseEvent(event);
}

void ExView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    QPixmap const *wallpaper = BaseControl::getInstance()->getBackgroundPixmap();
    if (wallpaper && !wallpaper->isNull()) {
        painter.drawPixmap(0, 0, *wallpaper);
    } else {
        painter.setPen(Qt::NoPen);
        painter.fillRect(rect(), QColor(27, 30, 36, 255));
    }
    event->accept();
}

void ExView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (stack)
        stack->refresh();
}

void ExView::BTclicked()
{
    if (sender() == backButton)
        BaseBarManager::emitBarBackSignal(0);
    else if (sender() == saverButton)
        BaseControl::getInstance()->showScreensaverview(false);
}

void ExView::onBaseBarClicked(QString id)
{
    if (id == QLatin1String("back") || id == QLatin1String("back_no_quit")) {
        if (tirePressure && tirePressure->isVisible()) {
            closeTirePressure();
            return;
        }
        if (stack && stack->isVisible()) {
            CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->currentWidget());
            if (!page || !page->doBackEvent()) {
                stack->hide();
                listView->show();
            }
            return;
        }
        leave();
    } else if (id == QLatin1String("home")) {
        leave();
        zorvappframework::ActivityManager::self()->openActivity(QStringLiteral("home"), 0);
    }
}

void ExView::onCanDataChanged()
{
    if (stack)
        stack->setData(CanObj::instance()->getDataById(CanObj::id()));
}

void ExView::onItemClicked(QModelIndex index)
{
    if (index.row() < 0 || index.column() < 0 || !index.model())
        return;
    listView->hide();
    stack->showIndex(index.row());
    stack->show();
    if (CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->currentWidget()))
        CAR_LOG("ExView") << "canbus  onItemClicked" << page->getTitle();
}

void ExView::leave()
{
    hide();
    close();
    deleteLater();
}
