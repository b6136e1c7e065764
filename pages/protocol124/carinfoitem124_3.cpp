#include "carinfoitem124_3.h"

#include "canobj.h"
#include "cdbutton.h"
#include "databuffer.h"
#include "frames.h"
#include "listdialog.h"
#include "sliderviewimte.h"
#include "zorvrollingtext.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

// The disc player's part of the data buffer.
enum Offset {
    FirstLineText = 32,
    ModeByte = 36,
    RandomByte = 39,
    RepeatByte = 40,
    AspectByte = 41,
    SubtitleByte = 42,
    EntryNumberWord = 44,
    RightText = 48,
    LeftText = 52,
    TotalEntriesWord = 56,
    PositionByte = 58,
    SecondLineText = 60,
    ThirdLineText = 64,
    EntriesList = 68
};

const int DiscCommand = 0xC7;
const int PositionCode = 0x2F;

// The modes of byte 36 in which a button works.
enum Usable { Always, InMode1, InMode2, InMode1Or2 };

// What a tap on a button does.
enum Action { Command, RepeatToggle, RandomToggle, SubtitleToggle, AspectToggle, OpenList };

struct ButtonSpec
{
    const char *text;
    Usable usable;
    Action action;
    int code;
};

// The buttons, 1 to 21; index i is button i + 1.
const ButtonSpec buttonSpecs[] = {
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Play"), InMode1Or2, Command, 0x02},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Pause"), InMode1Or2, Command, 0x01},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Next"), InMode1Or2, Command, 0x03},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Prev"), InMode1Or2, Command, 0x04},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Fast forward"), InMode2, Command, 0x05},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Rewind quickly"), InMode2, Command, 0x06},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "RPT"), InMode1, RepeatToggle, 0},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "RDM"), InMode1, RandomToggle, 0},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "SCAM"), InMode1, Command, 0x0C},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "AUX"), Always, Command, 0xA1},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "CD"), Always, Command, 0xF0},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "DVD"), Always, Command, 0x20},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Up"), InMode2, Command, 0x21},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Down"), InMode2, Command, 0x22},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Left"), InMode2, Command, 0x23},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Right"), InMode2, Command, 0x24},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "OK"), InMode2, Command, 0x25},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Discing"), Always, Command, 0x0B},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Captions OFF"), InMode2, SubtitleToggle, 0},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "Aspect ratio"), InMode2, AspectToggle, 0},
    {QT_TRANSLATE_NOOP("CarInfoItem124_3", "List"), InMode1, OpenList, 0},
};
const int ButtonCount = int(sizeof buttonSpecs / sizeof buttonSpecs[0]);

// The buttons by number, as they lie on the page.
const int RepeatButton = 7;
const int RandomButton = 8;
const int SubtitleButton = 19;
const int AspectButton = 20;
const int sideButtons[] = {19, 20, 21};
const int lowerGrid[3][6] = {
    {6, 4, 1, 2, 3, 5},
    {7, 8, 9, 10, 11, 12},
    {13, 14, 15, 16, 17, 18},
};

const double TextScale = 0.3;

bool usableIn(Usable usable, int mode)
{
    switch (usable) {
    case Always: return true;
    case InMode1: return mode == 1;
    case InMode2: return mode == 2;
    case InMode1Or2: return mode == 1 || mode == 2;
    }
    return false;
}

// The aspect ratio: the text of each state, and the command that leaves it.
const char *aspectText(int aspect)
{
    switch (aspect) {
    case 0: return QT_TRANSLATE_NOOP("CarInfoItem124_3", "16:9 widescreen");
    case 1: return QT_TRANSLATE_NOOP("CarInfoItem124_3", "4:3 Frames");
    case 2: return QT_TRANSLATE_NOOP("CarInfoItem124_3", "4:3 Panorama");
    default: return 0;
    }
}

int aspectCommand(int aspect)
{
    switch (aspect) {
    case 0: return 0x2B;
    case 1: return 0x2C;
    case 2: return 0x2A;
    default: return -1;
    }
}

unsigned char *discBuffer()
{
    return CanObj::instance()->getDataPointerById(CanObj::id());
}

} // namespace

CarInfoItem124_3::CarInfoItem124_3(QString const &title, QWidget *parent)
    : CarInfoItem(title, parent)
    , m_built(false)
    , m_positionBar(0)
    , m_leftText(0)
    , m_rightText(0)
    , m_counter(0)
    , m_listDialog(0)
    , m_mode(-1)
    , m_repeat(-1)
    , m_random(-1)
    , m_subtitle(-1)
    , m_aspect(-1)
    , m_position(-1)
    , m_listCount(-1)
{
    m_lines[0] = m_lines[1] = m_lines[2] = 0;
}

// A dialog still alive goes with the page: its end must not call back into
// a page that is going away.
CarInfoItem124_3::~CarInfoItem124_3()
{
    const QList<ListDialog *> dialogs = findChildren<ListDialog *>();
    for (int i = 0; i < dialogs.size(); ++i)
        disconnect(dialogs.at(i), 0, this, 0);
}

void CarInfoItem124_3::createView()
{
    if (m_built) {
        initlist();
        return;
    }
    buildView();
    m_built = true;
    initlist();
}

void CarInfoItem124_3::buildView()
{
    const QColor normal(131, 139, 131, 255);
    const QColor pressed(184, 135, 11, 255);
    const QColor notUsable(92, 92, 92, 255);
    for (int i = 0; i < ButtonCount; ++i) {
        CDButton *button = new CDButton(this);
        button->setObjectName(QStringLiteral("discButton%1").arg(i + 1));
        button->setBackgroundColor(normal, pressed, notUsable);
        button->setText(tr(buttonSpecs[i].text), TextScale);
        connect(button, SIGNAL(clicked()), this, SLOT(onClicke()));
        m_buttons.append(button);
    }

    const char *lineNames[3] = {"firstLine", "secondLine", "thirdLine"};
    for (int i = 0; i < 3; ++i) {
        m_lines[i] = new ZorvRollingText(this);
        m_lines[i]->setObjectName(QLatin1String(lineNames[i]));
        m_lines[i]->setTextColor(QColor(250, 250, 250, 255));
        m_lines[i]->setFontSize(20);
    }

    m_positionBar = new SliderViewImte(this);
    m_positionBar->setObjectName(QStringLiteral("positionBar"));
    m_positionBar->setRange(0, 100);
    connect(m_positionBar, SIGNAL(released(int)), this, SLOT(onSliderValueChanged(int)));

    const QString labelStyle = QStringLiteral("QLabel{color:white;font:20px;}");
    m_leftText = new QLabel(this);
    m_leftText->setObjectName(QStringLiteral("leftText"));
    m_rightText = new QLabel(this);
    m_rightText->setObjectName(QStringLiteral("rightText"));
    m_counter = new QLabel(this);
    m_counter->setObjectName(QStringLiteral("counter"));
    m_counter->setAlignment(Qt::AlignCenter);
    m_leftText->setStyleSheet(labelStyle);
    m_rightText->setStyleSheet(labelStyle);
    m_counter->setStyleSheet(labelStyle);

    QGridLayout *upper = new QGridLayout;
    for (int i = 0; i < 3; ++i)
        upper->addWidget(m_lines[i], i, 0, 1, 3);
    upper->addWidget(m_counter, 3, 0, 1, 3);
    upper->addWidget(m_leftText, 4, 0);
    upper->addWidget(m_positionBar, 4, 1);
    upper->addWidget(m_rightText, 4, 2);
    QVBoxLayout *side = new QVBoxLayout;
    for (int i = 0; i < 3; ++i)
        side->addWidget(m_buttons.at(sideButtons[i] - 1), 1);
    upper->addLayout(side, 0, 3, 5, 1);
    const int columnStretch[4] = {1, 8, 1, 2};
    for (int c = 0; c < 4; ++c)
        upper->setColumnStretch(c, columnStretch[c]);
    for (int r = 0; r < 5; ++r)
        upper->setRowStretch(r, 1);

    QGridLayout *lower = new QGridLayout;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 6; ++c)
            lower->addWidget(m_buttons.at(lowerGrid[r][c] - 1), r, c);
    }

    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addLayout(lower, 1);
    layout->setContentsMargins(margin, 0, margin, 0);
}

void CarInfoItem124_3::ondataChanged()
{
    if (m_built)
        initlist();
}

void CarInfoItem124_3::initlist()
{
    unsigned char *base = discBuffer();
    if (!m_built || !base)
        return;
    const DataBuffer data(base);

    const int mode = data.byte(ModeByte);
    if (mode != m_mode) {
        m_mode = mode;
        refreshMode(mode);
    }

    const int repeat = data.byte(RepeatByte);
    if (repeat != m_repeat) {
        m_repeat = repeat;
        m_buttons.at(RepeatButton - 1)->setText(repeat != 0 ? tr("RPT ON") : tr("RPT OFF"), TextScale);
    }
    const int random = data.byte(RandomByte);
    if (random != m_random) {
        m_random = random;
        m_buttons.at(RandomButton - 1)->setText(random != 0 ? tr("RDM ON") : tr("RDM OFF"), TextScale);
    }
    const int subtitle = data.byte(SubtitleByte);
    if (subtitle != m_subtitle) {
        m_subtitle = subtitle;
        m_buttons.at(SubtitleButton - 1)->setText(subtitle != 0 ? tr("Subtitle on") : tr("Subtitle off"), TextScale);
    }
    const int aspect = data.byte(AspectByte);
    if (aspect != m_aspect) {
        m_aspect = aspect;
        const char *text = aspectText(aspect);
        m_buttons.at(AspectButton - 1)->setText(text ? tr(text) : QString(), TextScale);
    }

    const int lineOffsets[3] = {FirstLineText, SecondLineText, ThirdLineText};
    for (int i = 0; i < 3; ++i) {
        const QString text = data.text(lineOffsets[i]);
        if (text != m_lineTexts[i]) {
            m_lineTexts[i] = text;
            m_lines[i]->setText(text);
        }
    }

    const int position = data.byte(PositionByte);
    if (position != m_position) {
        m_position = position;
        m_positionBar->setValue(position);
    }

    const QString left = data.text(LeftText);
    if (left != m_leftTextCache) {
        m_leftTextCache = left;
        m_leftText->setText(left);
    }
    const QString right = data.text(RightText);
    if (right != m_rightTextCache) {
        m_rightTextCache = right;
        m_rightText->setText(right);
    }

    const QString counter = QStringLiteral("%1/%2").arg(data.word(EntryNumberWord)).arg(data.word(TotalEntriesWord));
    if (counter != m_counterText) {
        m_counterText = counter;
        m_counter->setText(counter);
    }

    const QList<DateInfo> entries = data.entries(EntriesList);
    if (entries.size() != m_listCount) {
        m_listCount = entries.size();
        if (m_listDialog)
            m_listDialog->setListInfo(entries);
    }
}

// The source decides which buttons work, whether the finger may move the
// position bar, and which lines show.
void CarInfoItem124_3::refreshMode(int mode)
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons.at(i)->setProhibit(usableIn(buttonSpecs[i].usable, mode));
    m_positionBar->setSlideState(mode == 2);
    m_lines[1]->setVisible(mode == 1);
    m_lines[2]->setVisible(mode == 1);
    const bool disc = mode == 1 || mode == 2;
    m_positionBar->setVisible(disc);
    m_leftText->setVisible(disc);
    m_rightText->setVisible(disc);
    m_counter->setVisible(disc);
}

void CarInfoItem124_3::onClicke()
{
    const int index = m_buttons.indexOf(qobject_cast<CDButton *>(sender()));
    unsigned char *base = discBuffer();
    if (index < 0 || !base)
        return;
    const DataBuffer data(base);
    ButtonSpec const &button = buttonSpecs[index];
    switch (button.action) {
    case Command:
        sendCDDate(static_cast<unsigned char>(button.code));
        break;
    case RepeatToggle:
        sendCDDate(data.byte(RepeatByte) != 0 ? 0x08 : 0x07);
        break;
    case RandomToggle:
        sendCDDate(data.byte(RandomByte) != 0 ? 0x0A : 0x09);
        break;
    case SubtitleToggle:
        sendCDDate(data.byte(SubtitleByte) != 0 ? 0x27 : 0x28);
        break;
    case AspectToggle: {
        const int code = aspectCommand(data.byte(AspectByte));
        if (code >= 0)
            sendCDDate(static_cast<unsigned char>(code));
        break;
    }
    case OpenList:
        openListDialog();
        break;
    }
}

void CarInfoItem124_3::sendCDDate(unsigned char code)
{
    Frames::send(Frames::make2E(DiscCommand, {code, 0}));
}

// The position where the finger left the bar, in per cent: 2E C7 02 2F
// value and the checksum, six bytes.
void CarInfoItem124_3::onSliderValueChanged(int value)
{
    Frames::send(Frames::make2E(DiscCommand, {PositionCode, value}));
}

void CarInfoItem124_3::openListDialog()
{
    if (!m_listDialog) {
        m_listDialog = new ListDialog(this);
        m_listDialog->setObjectName(QStringLiteral("listDialog"));
        if (QWidget *stack = parentWidget())
            m_listDialog->setGeometry(QRect(QPoint(0, 0), stack->size()));
        unsigned char *base = discBuffer();
        m_listDialog->setListInfo(base ? DataBuffer(base).entries(EntriesList) : QList<DateInfo>());
        connect(m_listDialog, SIGNAL(destroyed()), this, SLOT(onBlackDialogDestoryed()));
    }
    m_listDialog->raise();
    m_listDialog->show();
    m_listDialog->setFocus(Qt::OtherFocusReason);
}

void CarInfoItem124_3::onBlackDialogDestoryed()
{
    m_listDialog = 0;
    setFocus(Qt::OtherFocusReason);
}

bool CarInfoItem124_3::doBackEvent()
{
    if (!m_listDialog || !m_listDialog->isVisible())
        return false;
    m_listDialog->close();
    m_listDialog->deleteLater();
    m_listDialog = 0;
    return true;
}
