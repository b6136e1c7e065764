#ifndef BUFFERVIEW_H
#define BUFFERVIEW_H

// The data buffer of the current protocol as a hex table of sixteen bytes a
// row. A byte typed in is written into the buffer, and the "canbus" module
// then reports the change, as it does when the decoder box reports.

#include <QAbstractTableModel>
#include <QWidget>

class QLabel;
class QTableView;

class BufferModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit BufferModel(QObject *parent = nullptr);

    int rowCount(QModelIndex const &parent = QModelIndex()) const override;
    int columnCount(QModelIndex const &parent = QModelIndex()) const override;
    QVariant data(QModelIndex const &index, int role) const override;
    bool setData(QModelIndex const &index, QVariant const &value, int role) override;
    Qt::ItemFlags flags(QModelIndex const &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The buffer may have changed under the model: the plug-in's pages
    // write into it too.
    void refresh();

private:
    // Unsigned char, the buffer of the protocol selected now.
    unsigned char *buffer() const;
};

class BufferView : public QWidget
{
    Q_OBJECT
public:
    explicit BufferView(QWidget *parent = nullptr);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    BufferModel *m_model;
    QTableView *m_table;
    QLabel *m_title;
};

#endif // BUFFERVIEW_H
