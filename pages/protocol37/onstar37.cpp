// Page 37_9: the OnStar telephone keypad.

#include "pages37.h"

#include "canobj.h"
#include "customimagebutton.h"
#include "databuffer.h"
#include "frames.h"
#include "imagepaths.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace {

// 2E 85 01 code: a key of the keypad. 2E 86 0A and ten bytes: call the number.
const int KeypadCommand = 0x85;
const int CallCommand = 0x86;
// The call frame carries twenty characters, two to a byte.
const int NumberBytes = 10;
const int NoCharacter = 15;

// What the service reports: the number it dials or talks to, its state (an
// index into the state texts) and two lines of status.
const int ReportedNumberField = 136;
const int StateByte = 140;
const int StatusLine1Field = 144;
const int StatusLine2Field = 148;
// From "Dialing" on, the number field shows the service's number.
const int FirstCallState = 2;

const float KeyTextSize = 0.3f;
const float NumberTextSize = 0.5f;
const float StatusTextSize = 0.4f;
const int HoldMs = 1000;

// The keys, in the page's order: the text, the code that a tap sends (or
// the call frame), what it adds to the number, and where it stands in the
// grid (row, column; the call key stands in the top line instead).
const int CallKey = -1;
struct KeypadKey
{
    const char *text;
    int code;
    const char *dials;
    int row;
    int column;
};
#define KEY(text) QT_TRANSLATE_NOOP("CarInfoItem37_9", text)
const KeypadKey keypad[] = {
    {KEY("0"), 0x80, "0", 2, 4},
    {KEY("1"), 0x81, "1", 1, 1},
    {KEY("2"), 0x82, "2", 1, 2},
    {KEY("3"), 0x83, "3", 1, 3},
    {KEY("4"), 0x84, "4", 2, 1},
    {KEY("5"), 0x85, "5", 2, 2},
    {KEY("6"), 0x86, "6", 2, 3},
    {KEY("7"), 0x87, "7", 3, 1},
    {KEY("8"), 0x88, "8", 3, 2},
    {KEY("9"), 0x89, "9", 3, 3},
    {KEY("#"), 0x8B, "#", 1, 4},
    {KEY("*"), 0x8A, "*", 3, 4},
    {KEY("call"), CallKey, "", 0, 0},
    {KEY("OFF"), 0x00, "", 1, 5},
    {KEY("ON"), 0x01, "", 2, 5},
    {KEY("Answer"), 0x02, "", 3, 5},
    {KEY("hang Up"), 0x03, "", 4, 5},
};
#undef KEY
const int KeyCount = int(sizeof keypad / sizeof keypad[0]);

DataBuffer serviceData()
{
    return DataBuffer(CanObj::instance()->getDataPointerById(CanObj::id()));
}

// A part of the display: a picture with a text over it that touches pass.
CustomImageButton *displayPart(QWidget *parent, QString const &name, QString const &picture)
{
    CustomImageButton *part = new CustomImageButton(parent);
    part->setObjectName(name);
    part->setBackgroundImage(imagePath(ExtendedImages, picture), QString(), QString(), QString(), true, 0);
    part->setIgnoreMouseEvent();
    return part;
}

} // namespace

CarInfoItem37_9::CarInfoItem37_9(QString const &title, QWidget *parent)
    : CarInfoItem(title, parent)
    , stateLabel(0)
    , numberField(0)
    , deleteButton(0)
    , statusLine1(0)
    , statusLine2(0)
{
    stateTexts << tr("OnStar system off") << tr("OnStar System on") << tr("Phone input") << tr("Dialing")
               << tr("Call connected");
}

void CarInfoItem37_9::initlist()
{
    // The display parts come first, so that a key and the number field that
    // shows the same text are told apart: the keys lie above.
    stateLabel = displayPart(this, QStringLiteral("stateLabel"), QStringLiteral("data_by.png"));
    numberField = displayPart(this, QStringLiteral("numberField"), QStringLiteral("page_password.png"));
    statusLine1 = displayPart(this, QStringLiteral("statusLine1"), QStringLiteral("page_password.png"));
    statusLine2 = displayPart(this, QStringLiteral("statusLine2"), QStringLiteral("page_password.png"));

    deleteButton = new CustomImageButton(this);
    deleteButton->setObjectName(QStringLiteral("deleteButton"));
    deleteButton->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("del_n.png")),
                                     imagePath(ExtendedImages, QStringLiteral("del_d.png")), QString(), QString(),
                                     true, 0);
    deleteButton->setEnableLongPressed(true, HoldMs);
    connect(deleteButton, SIGNAL(clicked()), this, SLOT(OnClicked()));
    connect(deleteButton, SIGNAL(longPressed()), this, SLOT(OnlongPressed()));

    QGridLayout *grid = new QGridLayout(this);
    grid->setSpacing(10);
    grid->setContentsMargins(40, 0, 40, 0);
    QHBoxLayout *top = new QHBoxLayout;
    top->addWidget(stateLabel, 1);
    top->addWidget(numberField, 3);
    top->addWidget(deleteButton, 0);
    grid->addLayout(top, 0, 1, 1, 5);
    QHBoxLayout *status = new QHBoxLayout;
    status->addWidget(statusLine1);
    status->addWidget(statusLine2);
    grid->addLayout(status, 4, 1, 1, 4);

    for (int i = 0; i < KeyCount; ++i) {
        CustomImageButton *key = new CustomImageButton(this);
        key->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("set_n.png")),
                                imagePath(ExtendedImages, QStringLiteral("set_d.png")), QString(), QString(),
                                true, 0);
        key->setText(tr(keypad[i].text), Qt::AlignCenter, Qt::white, KeyTextSize, false);
        connect(key, SIGNAL(clicked()), this, SLOT(OnClicked()));
        if (keypad[i].code == CallKey)
            top->addWidget(key, 1);
        else
            grid->addWidget(key, keypad[i].row, keypad[i].column);
        keys.append(key);
    }
}

void CarInfoItem37_9::createView()
{
    if (!numberField) {
        initlist();
    } else {
        // Back on the page: a new number.
        phoneNumber.clear();
        showNumber(phoneNumber);
    }
    showService();
}

void CarInfoItem37_9::ondataChanged()
{
    if (!numberField)
        return;
    showService();
}

void CarInfoItem37_9::showService()
{
    const DataBuffer data = serviceData();
    const int state = data.byte(StateByte);
    if (state >= FirstCallState)
        showNumber(data.text(ReportedNumberField));
    // A state that has no text shows none.
    stateLabel->setText(stateTexts.value(state), Qt::AlignCenter, Qt::white, StatusTextSize, false);
    statusLine1->setText(data.text(StatusLine1Field), Qt::AlignCenter, Qt::white, StatusTextSize, false);
    statusLine2->setText(data.text(StatusLine2Field), Qt::AlignCenter, Qt::white, StatusTextSize, false);
}

void CarInfoItem37_9::showNumber(QString const &text)
{
    numberField->setText(text, Qt::AlignCenter, Qt::white, NumberTextSize, false);
}

int CarInfoItem37_9::getPhone(QString const &character)
{
    if (character.size() != 1)
        return NoCharacter;
    const QChar c = character.at(0);
    if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
        return c.unicode() - '0';
    if (c == QLatin1Char('*'))
        return 10;
    if (c == QLatin1Char('#'))
        return 11;
    return NoCharacter;
}

QByteArray CarInfoItem37_9::packNumber(QString const &number)
{
    QByteArray bytes(NumberBytes, '\0');
    for (int i = 0; i < 2 * NumberBytes; i += 2) {
        const int high = getPhone(number.mid(i, 1));
        const int low = getPhone(number.mid(i + 1, 1));
        bytes[i / 2] = char((high << 4) | low);
    }
    return bytes;
}

void CarInfoItem37_9::OnClicked()
{
    QObject *key = sender();
    if (key && key == deleteButton) {
        phoneNumber.chop(1);
        // The delete key tells the car nothing: its frame has no bytes.
        Frames::send(QByteArray());
    } else {
        int i = 0;
        while (i < keys.size() && keys.at(i) != key)
            ++i;
        if (i == keys.size())
            return;
        KeypadKey const &entry = keypad[i];
        if (entry.code == CallKey) {
            Frames::send(Frames::make2E(CallCommand, packNumber(phoneNumber)));
        } else {
            Frames::send(Frames::make2E(KeypadCommand, {entry.code}));
            phoneNumber += QLatin1String(entry.dials);
        }
    }
    showNumber(phoneNumber);
}

void CarInfoItem37_9::OnlongPressed()
{
    if (sender() != deleteButton)
        return;
    phoneNumber.clear();
    showNumber(phoneNumber);
}
