#include "optionsitem.h"

#include "carlog.h"
#include "customimagebutton.h"
#include "imagepaths.h"

#include <QHBoxLayout>
#include <QMouseEvent>

namespace {

CustomImageButton *makeButton(QWidget *parent, QString const &objectName, const char *normal, const char *down)
{
    CustomImageButton *button = new CustomImageButton(parent);
    button->setObjectName(objectName);
    button->setBackgroundImage(imagePath(ExtendedImages, QLatin1String(normal)),
                               down ? imagePath(ExtendedImages, QLatin1String(down)) : QString(),
                               QString(), QString(), true, 0);
    button->setIgnoreMouseEvent();
    return button;
}

const QColor TextColour(255, 255, 255);
const float TextSize = 0.5f;

} // namespace

OptionsItem::OptionsItem(QModelIndex const &index, QString const &title, QWidget *parent)
    : QWidget(parent)
    , m_title(title)
    , m_left(0)
    , m_right(0)
    , m_titleButton(0)
    , m_valueButton(0)
    , m_index(index)
    , m_pressedArrow(0)
{
    const int h = height();
    m_left = makeButton(this, QStringLiteral("leftArrow"), "last.png", "last_d.png");
    m_right = makeButton(this, QStringLiteral("rightArrow"), "next.png", "next_d.png");
    m_titleButton = makeButton(this, QStringLiteral("title"), "title_by.png", 0);
    m_valueButton = makeButton(this, QStringLiteral("value"), "data_by.png", 0);

    const QString style = QStringLiteral("color:white;font:%1px;").arg(h, 0, 10);
    m_titleButton->setStyleSheet(style);
    m_valueButton->setStyleSheet(style);
    m_titleButton->setText(title, Qt::AlignLeft | Qt::AlignVCenter, TextColour, TextSize, false);

    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->addSpacing(h / 4);
    layout->addWidget(m_titleButton, 0);
    layout->addWidget(m_left, 1, Qt::AlignCenter);
    layout->addWidget(m_valueButton, 1, Qt::AlignCenter);
    layout->addWidget(m_right, 1, Qt::AlignCenter);
    layout->addSpacing(h / 4);
    layout->setSpacing(h / 4);

    // Keys on a focused arrow still click it.
    connect(m_left, SIGNAL(clicked()), this, SLOT(onBtClicked()));
    connect(m_right, SIGNAL(clicked()), this, SLOT(onBtClicked()));
}

QString OptionsItem::getTitle() const
{
    return m_title;
}

void OptionsItem::setTitle(QVariant const &title)
{
    if (!m_titleButton)
        return;
    m_title = title.toString();
    m_titleButton->setText(m_title, Qt::AlignCenter, TextColour, TextSize, false);
}

void OptionsItem::setValue(QVariant const &value)
{
    if (!m_valueButton)
        return;
    m_valueButton->setText(value.toString(), Qt::AlignCenter, TextColour, TextSize, false);
}

void OptionsItem::setAdjust(bool adjust)
{
    m_left->setVisible(adjust);
    m_right->setVisible(adjust);
}

QModelIndex OptionsItem::index() const
{
    return m_index;
}

void OptionsItem::onBtClicked()
{
    if (sender() == m_left)
        emit valueChanged(m_index, true);
    else if (sender() == m_right)
        emit valueChanged(m_index, false);
}

CustomImageButton *OptionsItem::arrowAt(QPoint const &pos) const
{
    if (m_left->isVisible() && m_left->geometry().contains(pos))
        return m_left;
    if (m_right->isVisible() && m_right->geometry().contains(pos))
        return m_right;
    return 0;
}

void OptionsItem::mousePressEvent(QMouseEvent *event)
{
    m_pressedArrow = arrowAt(event->pos());
    if (m_pressedArrow)
        m_pressedArrow->setDown(true);
    event->accept();
}

// A step needs the press and the release on the same arrow.
void OptionsItem::mouseReleaseEvent(QMouseEvent *event)
{
    CustomImageButton *pressed = m_pressedArrow;
    m_pressedArrow = 0;
    if (pressed)
        pressed->setDown(false);
    if (pressed && pressed == arrowAt(event->pos()))
        emit valueChanged(m_index, pressed == m_left);
    event->accept();
}

void OptionsItem::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    CAR_LOG("OptionsItem") << "showEvent" << this;
}

void OptionsItem::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    CAR_LOG("OptionsItem") << "hideEvent" << this;
}
