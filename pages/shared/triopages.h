#ifndef TRIOPAGES_H
#define TRIOPAGES_H

#include "rowpage.h"
#include "triomembers.h"

// The trio of pages that seventeen protocols share. A member's page class
// derives from one of these and names its protocol; everything else comes
// from the member table (triomembers.h). All rows are read-only: the frames
// below go out only when something calls onValueChanged.

// A page of the trio: it reads the buffer of its own protocol, whichever
// protocol is selected.
class TrioPage : public RowPage
{
    Q_OBJECT
protected:
    TrioPage(QString const &title, QWidget *parent, int protocol);

    int bufferId() const;
    // The member's entry, or null for a protocol that isn't a member.
    TrioMember const *member() const;

private:
    int m_protocol;
};

// "Voice control feedback": what the car's voice system can ask about.
// Row 0 sends the direction of the step, row 1 the chosen window.
class VoiceFeedbackPage : public TrioPage
{
    Q_OBJECT
protected:
    VoiceFeedbackPage(QString const &title, QWidget *parent, int protocol);

    QList<Row> rowTable() const;
};

// "Function recognition": which functions the decoder box recognises, a flag
// each.
class FunctionRecognitionPage : public TrioPage
{
    Q_OBJECT
protected:
    FunctionRecognitionPage(QString const &title, QWidget *parent, int protocol);

    QList<Row> rowTable() const;
};

// "Vehicle Information": a long list of live values.
class VehicleInformationPage : public TrioPage
{
    Q_OBJECT
protected:
    VehicleInformationPage(QString const &title, QWidget *parent, int protocol);

    QList<Row> rowTable() const;
};

#endif // TRIOPAGES_H
