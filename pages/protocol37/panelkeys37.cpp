// Page 37_7: the keys of the car's own panel, pressed from the head unit.

#include "pages37.h"

#include "customimagebutton.h"
#include "frames.h"
#include "imagepaths.h"

#include <QGridLayout>

namespace {

// 2E C6 01 code: the key with that code is down; code 0 means none is.
const int PanelKey = 0xC6;
const int IdleCode = 0;
// A held key says so after a second, and repeats its press every second.
const int HoldMs = 1000;

// The keys by their codes, counted from 0.
#define KEY(text) QT_TRANSLATE_NOOP("CarInfoItem37_7", text)
const char *const keyTexts[] = {KEY("NONE"), KEY("OK"), KEY("SETTING"), KEY("BC"), KEY("LEFT"), KEY("RIGH"),
                                KEY("FM/AM"), KEY("CD/MP3"), KEY("1"), KEY("2"), KEY("3"), KEY("4"), KEY("5"),
                                KEY("6"), KEY("7"), KEY("8"), KEY("9")};
#undef KEY
const int KeyCount = int(sizeof keyTexts / sizeof keyTexts[0]);
// The function keys stand in pairs in columns 1 and 2 of rows 1 to 4; the
// digits in threes in columns 4 to 6 of rows 1 to 3.
const int FunctionKeys = 8;

} // namespace

CarInfoItem37_7::CarInfoItem37_7(QString const &title, QWidget *parent)
    : CarInfoItem(title, parent)
    , heldCode(IdleCode)
{
}

void CarInfoItem37_7::createView()
{
    if (!keys.isEmpty())
        return;
    QGridLayout *grid = new QGridLayout(this);
    grid->setSpacing(10);
    grid->setContentsMargins(40, 0, 40, 0);
    for (int column = 0; column <= 7; ++column)
        grid->setColumnStretch(column, 1);
    for (int row = 1; row <= 4; ++row)
        grid->setRowStretch(row, 1);

    for (int code = 0; code < KeyCount; ++code) {
        CustomImageButton *key = new CustomImageButton(this);
        key->setBackgroundImage(imagePath(ExtendedImages, QStringLiteral("set_n.png")),
                                imagePath(ExtendedImages, QStringLiteral("set_d.png")), QString(), QString(),
                                true, 0);
        key->setText(tr(keyTexts[code]), Qt::AlignCenter, Qt::white, 0.3f, false);
        key->setEnableLongPressed(true, HoldMs);
        key->setEmitPressedSignalOnPressHold(HoldMs);
        connect(key, SIGNAL(pressed()), this, SLOT(Onclicke()));
        connect(key, SIGNAL(longPressed()), this, SLOT(OnlongPressed()));
        connect(key, SIGNAL(released()), this, SLOT(Onreleased()));
        if (code < FunctionKeys)
            grid->addWidget(key, 1 + code / 2, 1 + code % 2);
        else
            grid->addWidget(key, 1 + (code - FunctionKeys) / 3, 4 + (code - FunctionKeys) % 3);
        keys.append(key);
    }
}

int CarInfoItem37_7::codeOf(QObject *key) const
{
    for (int code = 0; code < keys.size(); ++code) {
        if (keys.at(code) == key)
            return code;
    }
    return -1;
}

void CarInfoItem37_7::sendKey(int code)
{
    Frames::send(Frames::make2E(PanelKey, {code}));
}

void CarInfoItem37_7::Onclicke()
{
    const int code = codeOf(sender());
    if (code >= 0)
        sendKey(code);
}

void CarInfoItem37_7::OnlongPressed()
{
    const int code = codeOf(sender());
    if (code >= 0)
        heldCode = code;
}

void CarInfoItem37_7::Onreleased()
{
    sendKey(IdleCode);
}

void CarInfoItem37_7::onCountdown()
{
    sendKey(heldCode);
}
