#include "scan_codes.h"

#include <QKeyEvent>

#ifdef Q_OS_WIN
quint32 WindowsScanCode(const QKeyEvent& event) { return event.nativeScanCode(); }
#else

namespace {

// Qt gives the key codes of X11, also under Wayland. They are those of Linux, counted from 8.
constexpr quint32 kX11Offset = 8;

// Linux key code, Windows scan code, where the two differ: Num Lock, the Japanese keys, the keys right of the letters,
// media keys, F13 to F24.
constexpr quint32 kDifferent[][2] = {
    {69, 325},  {89, 115},  {92, 121},  {93, 112},  {94, 123},  {95, 126},  {96, 284},  {97, 285},  {98, 309},
    {99, 311},  {100, 312}, {102, 327}, {103, 328}, {104, 329}, {105, 331}, {106, 333}, {107, 335}, {108, 336},
    {109, 337}, {110, 338}, {111, 339}, {113, 288}, {114, 302}, {115, 304}, {116, 350}, {117, 89},  {119, 69},
    {124, 125}, {125, 347}, {126, 348}, {127, 349}, {140, 289}, {142, 351}, {143, 355}, {155, 364}, {156, 358},
    {157, 363}, {158, 362}, {159, 361}, {163, 281}, {164, 290}, {165, 272}, {166, 292}, {172, 306}, {173, 359},
    {183, 100}, {184, 101}, {185, 102}, {186, 103}, {187, 104}, {188, 105}, {189, 106}, {190, 107}, {191, 108},
    {192, 109}, {193, 110}, {194, 118}, {217, 357}, {226, 365},
};

}  // namespace

quint32 WindowsScanCode(const QKeyEvent& event) {
  const quint32 code = event.nativeScanCode() - kX11Offset;
  if ((code >= 1 && code <= 68) || (code >= 70 && code <= 83) || (code >= 86 && code <= 88)) return code;
  for (const auto& pair : kDifferent) {
    if (pair[0] == code) return pair[1];
  }
  return 0;
}

#endif
