#include "tirepressure.h"

#include "appframework.h"
#include "customimagebutton.h"
#include "customimagewidget.h"
#include "imagepaths.h"

#include <QLabel>
#include <QVBoxLayout>

TirePressure::TirePressure(QWidget *parent)
    : QWidget(parent)
    , label(new QLabel(this))
    , resetButton(new CustomImageButton(this))
    , tireButton(new CustomImageButton(this))
{
    label->setObjectName(QStringLiteral("label"));
    resetButton->setObjectName(QStringLiteral("resetButton"));
    tireButton->setObjectName(QStringLiteral("tireButton"));

    resetButton->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("reset_n.png")),
                                    imagePath(ExtendedImages, QStringLiteral("reset_d.png")),
                                    QString(), QString(), true, 0);
    // Only a picture: the tyres.
    tireButton->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("tire.png")), QString(),
                                   QString(), QString(), true, 0);
    label->setStyleSheet(QString::fromLatin1("color:white;font:%1px;").arg(26));
    label->setText(tr("When the pressure of all 4 tires are checked correctly and there is no problem, please click Reset"));
    // The hint is longer than the screen is wide at its size: it wraps,
    // centred, within seven eighths of the panel's width.
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedWidth(zorvappframework::UIManager::getSystemViewRect().width() * 7 / 8);
    resetButton->setText(tr("Reset"), Qt::AlignCenter, Qt::white, 0.43f, false);
    connect(resetButton, SIGNAL(clicked()), this, SIGNAL(ClickedSlots()));

    CustomImageWidget *picture = new CustomImageWidget(this);
    picture->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("tire_by.png")), true);
    QVBoxLayout *pictureLayout = new QVBoxLayout(picture);
    pictureLayout->addWidget(tireButton, 1, Qt::AlignCenter);

    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(6);
    layout->addWidget(picture, 1, Qt::AlignCenter);
    layout->addStretch(1);
    layout->addWidget(label, 1, Qt::AlignCenter);
    layout->addStretch(6);
    layout->addWidget(resetButton, 1, Qt::AlignCenter);
    layout->addStretch(9);
}
