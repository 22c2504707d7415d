// Visibility of the public functions.
#ifndef TAVIINPUTMANAGER_EXPORT_H_
#define TAVIINPUTMANAGER_EXPORT_H_

#include <QtGlobal>

#ifdef TAVI_BUILDING_INPUTMANAGER
#define TAVI_EXPORT Q_DECL_EXPORT
#else
#define TAVI_EXPORT Q_DECL_IMPORT
#endif

#endif  // TAVIINPUTMANAGER_EXPORT_H_
