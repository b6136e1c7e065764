#ifndef CUSTOMIMAGEWIDGET_H
#define CUSTOMIMAGEWIDGET_H

#include <QString>
#include <QWidget>

class CustomImageWidgetPrivate;
class QImage;

// A widget that shows one picture, drawn at its top left corner.
class CustomImageWidget : public QWidget
{
    Q_OBJECT
public:
    explicit CustomImageWidget(QWidget *parent = 0);
    ~CustomImageWidget();

    // With fitToImage the widget takes the size of the picture.
    void setBackgroundImage(QString const &path, bool fitToImage);
    // The same with a picture that the caller keeps alive.
    void setConstBackgroundImage(QImage const *image, bool fitToImage);

protected:
    void paintEvent(QPaintEvent *event);

private:
    friend class CustomImageWidgetPrivate;
    CustomImageWidgetPrivate *const d;
};

#endif // CUSTOMIMAGEWIDGET_H
