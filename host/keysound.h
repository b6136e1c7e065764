#ifndef KEYSOUND_H
#define KEYSOUND_H

// The click of a touch.
class KeySound
{
public:
    static void playTouchSound();
};

#endif // KEYSOUND_H
