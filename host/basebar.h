#ifndef BASEBAR_H
#define BASEBAR_H

#include <QString>
#include <QWidget>

class BaseBarPrivate;

// The title bar with back and home buttons that every full screen has.
// A press of a button is reported by btnClickedSig with the button's id:
// "back", "home", and "back_no_quit" for a back that must not leave the
// application.
//
// setTitle() is the twenty-second virtual operation that BaseBar adds beyond
// those of QWidget; the reserved operations before it keep its place.
class BaseBar : public QWidget
{
    Q_OBJECT
public:
    explicit BaseBar(QWidget *parent = 0);

    virtual void reservedBar1();
    virtual void reservedBar2();
    virtual void reservedBar3();
    virtual void reservedBar4();
    virtual void reservedBar5();
    virtual void reservedBar6();
    virtual void reservedBar7();
    virtual void reservedBar8();
    virtual void reservedBar9();
    virtual void reservedBar10();
    virtual void reservedBar11();
    virtual void reservedBar12();
    virtual void reservedBar13();
    virtual void reservedBar14();
    virtual void reservedBar15();
    virtual void reservedBar16();
    virtual void reservedBar17();
    virtual void reservedBar18();
    virtual void reservedBar19();
    virtual void reservedBar20();
    virtual void reservedBar21();
    virtual void setTitle(QString const &title);

    ~BaseBar();

    QString title() const;

signals:
    void btnClickedSig(QString id);

protected:
    void paintEvent(QPaintEvent *event);
    void resizeEvent(QResizeEvent *event);

private:
    friend class BaseBarPrivate;
    BaseBarPrivate *const d;
};

class BaseBarManager
{
public:
    // A bar for a full screen, a child of parent, placed at its top edge and
    // shown.
    static BaseBar *createBaseBar(QWidget *parent, QString const &title,
                                  bool const &, bool const &, QString const &);
    // Reports a press of the back button of bar; with a null bar, of the bar
    // created last that still exists.
    static void emitBarBackSignal(BaseBar *bar);
};

#endif // BASEBAR_H
