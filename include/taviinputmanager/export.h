// Visibility of the public functions.
#ifndef TAVIINPUTMANAGER_EXPORT_H_
#define TAVIINPUTMANAGER_EXPORT_H_

#include <QtGlobal>

// On Windows, targets that link the static libraries define TAVI_STATIC. Elsewhere it makes no difference.
#if defined(TAVI_STATIC)
#define TAVI_EXPORT
#elif defined(TAVI_BUILDING_INPUTMANAGER)
#define TAVI_EXPORT Q_DECL_EXPORT
#else
#define TAVI_EXPORT Q_DECL_IMPORT
#endif

#endif  // TAVIINPUTMANAGER_EXPORT_H_
