#ifndef CARLOG_H
#define CARLOG_H

#include <QDebug>

// The debug line of the plug-in:
//   [QT] [DialogView] func: createReverseView line: 150 <message parts>
// CAR_LOG("DialogView") << "message"; the class name is a string literal.
// CAR_LOG_AT gives the line number explicitly, for lines whose number is part
// of what the head unit's log readers look for.
#define CAR_LOG_AT(className, line) \
    qDebug() << "" << "[QT]" << "[" className "]" << "func:" << __FUNCTION__ << "line:" << (line)
#define CAR_LOG(className) CAR_LOG_AT(className, __LINE__)

#endif // CARLOG_H
