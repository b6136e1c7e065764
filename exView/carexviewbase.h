#ifndef CAREXVIEWBASE_H
#define CAREXVIEWBASE_H

#include <QByteArray>
#include <QList>
#include <QStackedWidget>
#include <QString>
#include <QVariant>

class CarInfoItem;

// The pages of one vehicle family, one in front at a time. A family's stack
// knows what to ask of the decoder box when a page comes to the front.
//
// Every stack takes focus and presses without acting on them, and lets all
// keys pass on to the extended view, so that the back keys work whatever
// page is in front.
class CarExViewBase : public QStackedWidget
{
    Q_OBJECT
public:
    explicit CarExViewBase(QWidget *parent = 0);

    // Brings the page at index to the front, builds or refreshes it, and
    // sends the family's requests for it.
    virtual void showIndex(int index) = 0;
    // The vehicle's data changed: the page in front refreshes.
    virtual void setData(QVariant const &data) = 0;
    virtual void refresh();
    // The titles of the pages, in stack order.
    virtual QList<QString> getDatalist();

signals:
    void sendData(QByteArray data);
    void TirePressure();

protected:
    // One page of a family: its title (translated in the context of the
    // stack's class) and how to make it.
    struct PageEntry
    {
        const char *title;
        CarInfoItem *(*create)(QString const &title, QWidget *parent);
    };
    template <class Page>
    static CarInfoItem *makePage(QString const &title, QWidget *parent)
    {
        return new Page(title, parent);
    }

    // Creates the family's pages, in order, as children of this stack.
    void addPages(PageEntry const *entries, int count);
    // Raises the page and lets it build itself or refresh.
    void raisePage(int index);
    // The page in front, or null.
    CarInfoItem *currentPage() const;
    // Passes the pages' own frames on (families that send through signals).
    void forwardPageFrames();

    void focusInEvent(QFocusEvent *event);
    void keyPressEvent(QKeyEvent *event);
    void mousePressEvent(QMouseEvent *event);
};

#endif // CAREXVIEWBASE_H
