#ifndef CARINFOITEM_H
#define CARINFOITEM_H

#include <QByteArray>
#include <QString>
#include <QWidget>

// A page of the extended view: one screen of rows for one group of the
// vehicle's data. A page builds nothing until it first comes to the front
// (createView()); afterwards it follows the data buffer (ondataChanged()).
class CarInfoItem : public QWidget
{
    Q_OBJECT
public:
    CarInfoItem(QString const &title, QWidget *parent);

    // Builds the page on its first call; later calls only refresh it.
    virtual void createView() = 0;
    // The back key while this page is in front: true when the page used it.
    virtual bool doBackEvent();
    // The vehicle's data changed; a page that was never shown ignores it.
    virtual void ondataChanged();

public slots:
    // The requests that the page itself sends to the decoder box.
    virtual void refreshDataFromCanbus();

public:
    // refreshDataFromCanbus() in 100 ms, unless the page is gone by then.
    void refreshLater();
    QString getTitle() const;

signals:
    void sendData(QByteArray data);

protected:
    QString title;
    // Left and right margin of the rows.
    int margin;
    int rowHeight;
};

#endif // CARINFOITEM_H
