#ifndef DIALOGBASE_H
#define DIALOGBASE_H

#include <QWidget>

// The base of the overlays that DialogView coordinates. It carries the one
// flag the coordinator reads: whether the overlay wants to be seen. The flag
// follows setVisible() as well as the show and hide events, because an
// overlay may be made visible while the coordinator itself is hidden, when no
// show event arrives.
class DialogBase : public QWidget
{
    Q_OBJECT
public:
    explicit DialogBase(QWidget *parent = 0);

    bool needShow() const;

    void setVisible(bool visible) Q_DECL_OVERRIDE;

signals:
    void hided();

protected:
    void showEvent(QShowEvent *event) Q_DECL_OVERRIDE;
    void hideEvent(QHideEvent *event) Q_DECL_OVERRIDE;

private:
    // The wish to be seen; needShow() answers it.
    bool m_needShow;
};

#endif // DIALOGBASE_H
