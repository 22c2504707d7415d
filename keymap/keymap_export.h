// Visibility of the keymap contract: its functions are exported by the keymap library, its records keep one run-time
// type in every library that uses them.
#ifndef KEYMAP_KEYMAP_EXPORT_H_
#define KEYMAP_KEYMAP_EXPORT_H_

#include <QtGlobal>

#if defined(TAVI_STATIC)
#define TAVI_KEYMAP_EXPORT
#elif defined(TAVI_BUILDING_KEYMAPMANAGER)
#define TAVI_KEYMAP_EXPORT Q_DECL_EXPORT
#else
#define TAVI_KEYMAP_EXPORT Q_DECL_IMPORT
#endif

// For header-only classes: the default visibility on every side.
#if defined(__GNUC__)
#define TAVI_KEYMAP_RECORD __attribute__((visibility("default")))
#else
#define TAVI_KEYMAP_RECORD
#endif

#endif  // KEYMAP_KEYMAP_EXPORT_H_
