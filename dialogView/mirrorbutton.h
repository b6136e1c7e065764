#ifndef MIRRORBUTTON_H
#define MIRRORBUTTON_H

#include "customimagebutton.h"

class QImage;

// A picture button whose pictures can be shown mirrored left to right. The
// pictures are read once; their mirrored variants are made once, on the
// first switch to mirrored, and kept.
class MirrorButton : public CustomImageButton
{
    Q_OBJECT
public:
    explicit MirrorButton(QWidget *parent = 0);
    ~MirrorButton();

    // The normal and down pictures, by path; meant to be set once.
    void setButtonBackgroundImage(QString const &normal, QString const &down);
    void setMirror(bool mirror);

private:
    // Hands the plain or the mirrored pictures to the button.
    void showImages();

    bool mirror;
    QString normalPath;
    QString downPath;
    QImage *normalImage;
    QImage *downImage;
    QImage *mirroredNormalImage;
    QImage *mirroredDownImage;
};

#endif // MIRRORBUTTON_H
