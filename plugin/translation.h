#ifndef TRANSLATION_H
#define TRANSLATION_H

// The plug-in's translation: the texts of every view in the driver's
// language. One translator, made and installed by the first call in the
// process, holds carcontrol_<locale>.qm from translationsPath() for the
// locale in force, QLocale(): the head unit's system locale unless the
// process made another its default. A locale without a file leaves the
// source texts.
//
// The root calls it when it is made and before it makes a view, so that a
// process that changes its default locale (the simulator's language
// picker) sees the change on the next view that opens; on the head unit the
// locale stands and later calls do nothing.
void followLocale();

#endif // TRANSLATION_H
