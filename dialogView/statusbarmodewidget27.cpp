#include "statusbarmodewidget27.h"

#include "appframework.h"
#include "customimagebutton.h"
#include "imagepaths.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

StatusBarModeWidget27::StatusBarModeWidget27(QWidget *parent)
    : QWidget(parent)
    , backButton(0)
    , keyHandled(false)
{
    const QSize barSize = zorvappframework::UIManager::getSystemBarRect(0, 0).size();
    setFixedSize(barSize);

    // The host gives the bar's margins packed into one value, a byte each:
    // left, top, right, bottom from the lowest byte up.
    const quint32 margins = qApp->property("TopBarMargins").toUInt();
    const int left = margins & 0xFF;
    const int top = (margins >> 8) & 0xFF;
    const int right = (margins >> 16) & 0xFF;
    const int bottom = (margins >> 24) & 0xFF;

    backButton = new CustomImageButton(this);
    backButton->setObjectName(QStringLiteral("backButton"));
    backButton->setBackgroundImage(imagePath(OverlayImages, QStringLiteral("ctrl_back_n")),
                                   imagePath(OverlayImages, QStringLiteral("ctrl_back_d")),
                                   QString(), QString(), false, 0);
    const int side = barSize.height() - top;
    backButton->setFixedSize(side, side);
    focusButtons.append(backButton);

    QLabel *title = new QLabel(this);
    title->setObjectName(QStringLiteral("title"));
    // A host that gives no font size leaves the label's own font.
    const int fontSize = qApp->property("TopBarFontSize").toInt();
    title->setStyleSheet(fontSize > 0 ? QStringLiteral("QLabel{font:%1px;color:white;}").arg(fontSize)
                                      : QStringLiteral("QLabel{color:white;}"));
    title->setText(tr("Air conditioner"));

    connect(backButton, SIGNAL(clicked()), this, SIGNAL(backClicked()));

    QGridLayout *layout = new QGridLayout(this);
    layout->addWidget(backButton, 0, 0, Qt::AlignCenter);
    layout->addWidget(title, 0, 1, Qt::AlignLeft | Qt::AlignVCenter);
    layout->setColumnStretch(1, 1);
    layout->setContentsMargins(left, top, right, bottom);
    layout->setSpacing(0);
}

bool StatusBarModeWidget27::moveFocus(int step)
{
    int found = -1;
    for (int i = 0; i < focusButtons.size(); ++i) {
        if (focusButtons.at(i)->isDown() || focusButtons.at(i)->hasFocus()) {
            found = i;
            break;
        }
    }
    if (found < 0) {
        if (!focusButtons.isEmpty())
            focusButtons.first()->setDown(true);
        return true;
    }
    const int next = found + step;
    if (next < 0 || next >= focusButtons.size())
        return false;
    focusButtons.at(found)->setDown(false);
    focusButtons.at(next)->setDown(true);
    focusButtons.at(next)->setFocus(Qt::OtherFocusReason);
    return true;
}

void StatusBarModeWidget27::keyPressEvent(QKeyEvent *event)
{
    keyHandled = false;
    int step = 0;
    switch (event->key()) {
    case 0x0110003E:  // right
    case 0x0110004D:  // next
    case 0x0140000D:  // right
        step = 1;
        break;
    case 0x0110003D:  // left
    case 0x0110004E:  // previous
    case 0x0140000C:  // left
        step = -1;
        break;
    case 0x0110002A:  // back
    case 0x01100041:  // enter
    case 0x01400009:  // enter
        if (backButton->isDown())
            emit backButton->clicked();
        event->accept();
        keyHandled = true;
        return;
    default:
        event->ignore();
        return;
    }
    if (moveFocus(step)) {
        event->accept();
        keyHandled = true;
    } else {
        event->ignore();
    }
}

void StatusBarModeWidget27::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(keyHandled);
}
