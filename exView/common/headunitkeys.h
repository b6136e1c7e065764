#ifndef HEADUNITKEYS_H
#define HEADUNITKEYS_H

// The head unit's hardware keys as they arrive in QKeyEvent::key(): the
// panel's keys and the remote's. Both families mean the same, and every
// widget of the toolkit treats them alike. The knob's next and previous
// exist on the panel only.
namespace HeadUnitKeys {

inline bool isEnter(int key) { return key == 0x1100041 || key == 0x1400009; }
inline bool isUp(int key) { return key == 0x110003F || key == 0x140000A; }
inline bool isDown(int key) { return key == 0x1100040 || key == 0x140000B; }
inline bool isLeft(int key) { return key == 0x110003D || key == 0x140000C; }
inline bool isRight(int key) { return key == 0x110003E || key == 0x140000D; }
inline bool isNext(int key) { return key == 0x110004D; }
inline bool isPrevious(int key) { return key == 0x110004E; }
inline bool isBack(int key) { return key == 0x110002A || key == 0x140000F; }

} // namespace HeadUnitKeys

#endif // HEADUNITKEYS_H
