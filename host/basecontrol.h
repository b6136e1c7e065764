#ifndef BASECONTROL_H
#define BASECONTROL_H

#include <QString>

class QKeyEvent;
class QPixmap;

// The head unit's process-wide control object.
class BaseControl
{
public:
    // Never null.
    static BaseControl *getInstance();

    // The head unit's default handling of a hardware key; a view passes on
    // the keys that it doesn't handle itself.
    void keyPressEvent(QKeyEvent *event);
    void keyReleaseEvent(QKeyEvent *event);

    // The user's wallpaper; may be null or a null pixmap.
    QPixmap const *getBackgroundPixmap() const;

    // Hands a climate command to the CAN-bus module.
    void setCanbusStateToCanbus(QString const &key, QString const &value);

    void showScreensaverview(bool show);

private:
    BaseControl();
};

#endif // BASECONTROL_H
