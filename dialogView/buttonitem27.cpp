#include "buttonitem27.h"

#include "customimagebutton.h"

#include <QBoxLayout>
#include <QLabel>

ButtonItem27::ButtonItem27(QWidget *parent)
    : QWidget(parent)
    , button(new CustomImageButton(this))
    , label(new QLabel(this))
{
    button->setObjectName(QStringLiteral("button"));
    label->setObjectName(QStringLiteral("label"));
}

void ButtonItem27::setImage(QString const &normal, QString const &down, QString const &text,
                            bool horizontal, int fontSize)
{
    button->setBackgroundImage(normal, down, QString(), QString(), true, 0);
    label->setStyleSheet(QStringLiteral("QLabel{color:white;font: %1px;}").arg(fontSize));
    label->setText(text);
    if (layout())
        return;
    if (horizontal) {
        QHBoxLayout *row = new QHBoxLayout(this);
        row->addWidget(button, 1, Qt::AlignCenter);
        row->addWidget(label, 2, Qt::AlignVCenter);
    } else {
        QVBoxLayout *column = new QVBoxLayout(this);
        column->addWidget(button, 3, Qt::AlignCenter);
        column->addWidget(label, 1, Qt::AlignTop | Qt::AlignHCenter);
    }
}

void ButtonItem27::setImageDown(bool down)
{
    button->setDown(down);
}
