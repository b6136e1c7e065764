#ifndef CARTIPICON_H
#define CARTIPICON_H

#include "cardoordata.h"
#include "customimagewidget.h"

class CustomImageButton;
class QLabel;

// One warning of the door and body overlay: a picture, large or small, and
// its caption. The caption is a child of the icon's parent, so that the two
// can take separate places in the parent's grid.
class CarTipIcon : public CustomImageWidget
{
    Q_OBJECT
public:
    explicit CarTipIcon(QWidget *parent = 0);

    // The caption and the paths of the large and the small picture.
    virtual void setInfo(QString const &text, QString const &normalImage,
                         QString const &smallImage);
    // The large picture with true, the small one with false; the same
    // picture is not set twice.
    virtual void setNormalSize(bool normal);

    // Shows or hides the icon with its caption.
    void setWarning(bool warning);
    bool isWarning() const;

    QLabel *captionLabel() const;

protected:
    QLabel *label;

private:
    // -1 while no picture was chosen, then 0 (small) or 1 (large).
    int normalSize;
    QString normalImage;
    QString smallImage;
    bool warning;
};

// The car seen from above with its doors, hood and trunk, each drawn open or
// closed over the body, and a caption that names what stands open. It keeps
// its one size.
class CarDoorTipIcon : public CarTipIcon
{
    Q_OBJECT
public:
    explicit CarDoorTipIcon(QWidget *parent = 0);

    void setInfo(QString const &text, QString const &normalImage,
                 QString const &smallImage) Q_DECL_OVERRIDE;
    void setNormalSize(bool normal) Q_DECL_OVERRIDE;

    void setData(CardoorData const &door);

private:
    CardoorData cardoorData;
    CustomImageWidget *carImage;
    CustomImageButton *hoodButton;
    CustomImageButton *trunkButton;
    CustomImageButton *frontLeftButton;
    CustomImageButton *frontRightButton;
    CustomImageButton *rearLeftButton;
    CustomImageButton *rearRightButton;
};

#endif // CARTIPICON_H
