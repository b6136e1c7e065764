#ifndef DATASAVECONTROL_H
#define DATASAVECONTROL_H

#include <QString>
#include <QVariant>

// The head unit's keyed persistent store.
class DataSaveControl
{
public:
    static void saveUserData(QString const &key, QVariant const &value);
    static void saveSettingData(QString const &key, QVariant const &value,
                                QString const &group);
    static QVariant readSettingData(QString const &key,
                                    QVariant const &defaultValue,
                                    QString const &group);
};

#endif // DATASAVECONTROL_H
