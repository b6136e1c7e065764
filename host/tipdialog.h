#ifndef TIPDIALOG_H
#define TIPDIALOG_H

#include <QString>

// A transient message on the head unit's screen.
class TipDialog
{
public:
    static void showMessage(QString const &text, int, bool);
    static void hideMessage();
};

#endif // TIPDIALOG_H
