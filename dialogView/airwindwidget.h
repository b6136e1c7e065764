#ifndef AIRWINDWIDGET_H
#define AIRWINDWIDGET_H

#include <QList>
#include <QWidget>

class CustomImageButton;
class CustomImageWidget;
class QImage;

// The fan level bar of the climate panel: a slower key, the bar of the level
// (0 to 7) and a faster key. Each level's picture is read on first use and
// kept.
class AirWindWidget : public QWidget
{
    Q_OBJECT
public:
    explicit AirWindWidget(QWidget *parent = 0);
    ~AirWindWidget();

    // A level outside 0 to 7 leaves the bar as it is.
    void setWindSpeed(int level);

signals:
    void windAdd();
    void windSub();

private:
    CustomImageButton *subButton;
    CustomImageButton *addButton;
    CustomImageWidget *levelImage;
    // One picture per level, null until first shown.
    QList<QImage *> levelImages;
};

#endif // AIRWINDWIDGET_H
