#ifndef PAGES37_H
#define PAGES37_H

#include "carinfoitem.h"
#include "rowpage.h"

#include <QList>
#include <QString>
#include <QStringList>

class CustomImageButton;

// The pages of the family of protocols 37, 38 and 39 (General Motors cars
// with OnStar), in the order of the stack. Seven are tables of rows; the
// panel keys (37_7) and the OnStar keypad (37_9) are grids of buttons.

// Automatic parking, trips and a few settings. The tap rows "Clear TripA/B"
// act on their middle strip; the language and the steering wheel button
// type show a step at once.
class CarInfoItem37_1 : public ClickRowPage
{
    Q_OBJECT
public:
    using ClickRowPage::ClickRowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
    void middlePressed(int row);
};

// The hybrid drive's energy flow, and the choice of the car's model, which
// the head unit keeps.
class CarInfoItem37_2 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
    void valueStepped(int row, int value);
};

class CarInfoItem37_3 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

class CarInfoItem37_4 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

class CarInfoItem37_5 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

class CarInfoItem37_6 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// A remote control of the car's own panel: seventeen keys whose position in
// the list is the key code. A press sends the code, a held key sends it
// again every second, a release sends the idle code 0.
class CarInfoItem37_7 : public CarInfoItem
{
    Q_OBJECT
public:
    CarInfoItem37_7(QString const &title, QWidget *parent);

    // Builds the keys on the first call; later calls change nothing.
    void createView();

public slots:
    // pressed() of a key, also each repeat while it is held.
    void Onclicke();
    // longPressed() of a key: the key is remembered.
    void OnlongPressed();
    // released() of a key.
    void Onreleased();
    // Sends the remembered key once more.
    void onCountdown();

private:
    int codeOf(QObject *key) const;
    void sendKey(int code);

    // The keys in the order of their codes.
    QList<CustomImageButton *> keys;
    // The code of the key held last; 0, the idle code, until one is held.
    int heldCode;
};

class CarInfoItem37_8 : public RowPage
{
    Q_OBJECT
public:
    using RowPage::RowPage;

protected:
    QList<Row> rowTable() const;
};

// The OnStar telephone keypad: digits, * and # dial into the entered
// number and go to the car one by one; "call" sends the whole number; the
// service keys switch OnStar and answer or end a call. The top line shows
// the service's state, the number, the delete key and "call"; the bottom
// line two status texts of the service.
class CarInfoItem37_9 : public CarInfoItem
{
    Q_OBJECT
public:
    CarInfoItem37_9(QString const &title, QWidget *parent);

    // Builds the keypad on the first call; later calls start a new number.
    void createView();
    void ondataChanged();

    // The half byte that a character of the number goes out as: digits as
    // themselves, "*" as 10, "#" as 11, anything else (also nothing) as 15.
    static int getPhone(QString const &character);
    // The call frame's ten data bytes: the number's first twenty characters
    // two to a byte, first in the high half, padded with 15.
    static QByteArray packNumber(QString const &number);

public slots:
    // A key of the keypad, the delete key included, was tapped.
    void OnClicked();
    // The delete key held: the whole number goes.
    void OnlongPressed();

protected:
    void initlist();

private:
    void showNumber(QString const &text);
    // The state, the status lines, and the number that the service reports
    // while it dials or talks.
    void showService();

    // What the user has dialled so far.
    QString phoneNumber;
    // The texts of the service's states, by the state byte.
    QStringList stateTexts;

    QList<CustomImageButton *> keys;
    CustomImageButton *stateLabel;
    CustomImageButton *numberField;
    CustomImageButton *deleteButton;
    CustomImageButton *statusLine1;
    CustomImageButton *statusLine2;
};

#endif // PAGES37_H
