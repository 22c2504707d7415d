// Visibility of the keymap contract. The keymap library exports its functions. Its records have one run-time type
// across all libraries that use them.
#ifndef KEYMAP_KEYMAP_EXPORT_H_
#define KEYMAP_KEYMAP_EXPORT_H_

#include <QtGlobal>

#if defined(TAVI_STATIC) || defined(TAVI_KEYMAP_BY_LINKER)  // the latter: whichever library the linker finds
#define TAVI_KEYMAP_EXPORT
#elif defined(TAVI_BUILDING_KEYMAPMANAGER)
#define TAVI_KEYMAP_EXPORT Q_DECL_EXPORT
#else
#define TAVI_KEYMAP_EXPORT Q_DECL_IMPORT
#endif

// For header-only classes: default visibility in every library.
#if defined(__GNUC__)
#define TAVI_KEYMAP_RECORD __attribute__((visibility("default")))
#else
#define TAVI_KEYMAP_RECORD
#endif

#endif  // KEYMAP_KEYMAP_EXPORT_H_
