#ifndef LISTDIALOG_H
#define LISTDIALOG_H

#include <QList>
#include <QModelIndex>
#include <QString>
#include <QWidget>

#include "dateinfo.h"

class CDButton;
class ListModel0;
class ListView;

// The disc browser: a black screen with the entries that the CAN-bus module
// fetched so far, "number  name", and a "Download" button under them. A
// tap on an entry plays it; the button asks the decoder box for the next
// entries, as long as the disc holds more than the list shows. The answer
// comes back through the data buffer, and the owner hands the grown list in
// again with setListInfo(). The back key closes the dialog, which then
// deletes itself; nothing under it sees the touches and keys meant for it.
class ListDialog : public QWidget
{
    Q_OBJECT
public:
    explicit ListDialog(QWidget *parent);

    void setListInfo(QList<DateInfo> list);
    // The entry texts as shown.
    QList<QString> entryTexts() const;

public slots:
    void onItemClicked(QModelIndex index);
    void onClicke();

protected:
    void paintEvent(QPaintEvent *event);
    void mousePressEvent(QMouseEvent *event);
    void keyPressEvent(QKeyEvent *event);
    void keyReleaseEvent(QKeyEvent *event);

private:
    ListView *m_list;
    ListModel0 *m_model;
    CDButton *m_button;
    QList<QString> m_texts;
};

#endif // LISTDIALOG_H
