// Visibility of the public functions.
#ifndef TAVIINPUTMANAGER_EXPORT_H_
#define TAVIINPUTMANAGER_EXPORT_H_

#include <QtGlobal>

// TAVI_STATIC is defined on Windows, where it makes a difference, for what is linked with static libraries.
#if defined(TAVI_STATIC)
#define TAVI_EXPORT
#elif defined(TAVI_BUILDING_INPUTMANAGER)
#define TAVI_EXPORT Q_DECL_EXPORT
#else
#define TAVI_EXPORT Q_DECL_IMPORT
#endif

#endif  // TAVIINPUTMANAGER_EXPORT_H_
