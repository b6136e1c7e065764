#ifndef FRAMES_H
#define FRAMES_H

#include <QByteArray>

#include <initializer_list>

// Command frames to the decoder box. A builder makes exactly the frame its
// caller asks for, checksum slot included and zero-filled, and never checks
// the length byte against the size: some frames of the cars are odd on
// purpose (a voice frame one byte shorter than its length says, 0x2E order
// under an 0xFD header, length and command swapped) and must go out so.
namespace Frames {

enum Header { Family2E = 0x2E, FamilyFD = 0xFD };

// 2E command L payload... slot: L is the payload's size.
QByteArray make2E(int command, std::initializer_list<int> payload);
QByteArray make2E(int command, QByteArray const &payload);

// FD N command payload... slot(s): N is the frame's size less one. The
// checksum takes two bytes in protocol 67 and one elsewhere.
QByteArray makeFD(int command, std::initializer_list<int> payload, int checksumBytes = 1);
QByteArray makeFD(int command, QByteArray const &payload, int checksumBytes = 1);

// Exactly the bytes given, checksum slot(s) among them, for frames that
// follow neither layout.
QByteArray exact(std::initializer_list<int> bytes);

// The request for a data group, command 0x90, in its four 0x2E forms:
// 2E 90 02 group qualifier, 2E 90 01 group, 2E 90 03 group 00 00.
QByteArray request(int group, int qualifier = 0);
QByteArray request1(int group);
QByteArray request3(int group);

// Fills the checksum slot by the decoder box's rule and returns the frame.
QByteArray sealed(QByteArray frame);

// Fills the checksum slot and sends the frame to the decoder box.
void send(QByteArray frame);

} // namespace Frames

#endif // FRAMES_H
