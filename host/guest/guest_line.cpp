#include "host/guest/guest_line.h"

#include <cmath>

#include <QStringList>

#include "qt/numbers.h"

namespace tavi {

using Kind = GuestLine::Kind;

namespace {

// The fields after a line's name: "i" a whole number, "d" a number, "0" and "1" these numbers themselves, "t" a text to
// the end of the line, "+" for "the fields before it, any number of times".
struct LineForm {
  const char* name;
  Kind kind;
  const char* fields;
};

constexpr LineForm kForms[] = {
    {"SLOTPRESS", Kind::kSlotPress, "ii11dd"},
    {"SLOTRELEASE", Kind::kSlotRelease, "i"},
    {"SLOTRELEASEALL", Kind::kSlotReleaseAll, ""},
    {"SLOTMULTIPRESS", Kind::kMultiPress, "iidd+"},
    {"SLOTMULTIRELEASE", Kind::kMultiRelease, "i+"},
    {"KBDPR", Kind::kKeyPress, "i1"},
    {"KBDRL", Kind::kKeyRelease, "i0"},
    {"MOUSEMOVE_REL", Kind::kMouseMove, "dd"},
    {"WHEEL", Kind::kWheel, "dddd"},
    {"WHEEL_WITH_DELTA", Kind::kWheelWithDelta, "iid0"},
    {"TEXT", Kind::kText, "t"},
    {"TEXT_CONTROL", Kind::kTextControl, "t"},
    {"LSTICKAXIS", Kind::kLeftStick, "ii"},
    {"RSTICKAXIS", Kind::kRightStick, "ii"},
    {"LTRIGGERAXIS", Kind::kLeftTrigger, "i"},
    {"RTRIGGERAXIS", Kind::kRightTrigger, "i"},
    {"GPDBUTTON", Kind::kGamepadButton, "ii"},
    {"HATX", Kind::kHatX, "i"},
    {"HATY", Kind::kHatY, "i"},
    {"TOUCHPADLIGHTTOUCH", Kind::kTouchpadTouch, "ii"},
    {"TOUCHPADPRESS", Kind::kTouchpadPress, ""},
    {"TOUCHPADRELEASE", Kind::kTouchpadRelease, ""},
};

const LineForm* FindForm(const QString& name) {
  for (const LineForm& form : kForms) {
    if (name == QLatin1String(form.name)) return &form;
  }
  return nullptr;
}

bool ReadNumber(const QString& field, QChar kind, QVector<double>* numbers) {
  bool is_number = false;
  const double number = kind == QLatin1Char('d') ? field.toDouble(&is_number) : qt::ToInt(field, &is_number);
  numbers->append(number);
  if (kind.isDigit()) return is_number && number == kind.digitValue();
  return is_number && std::isfinite(number);
}

bool ReadNumbers(const QStringList& fields, QString kinds, QVector<double>* numbers) {
  const bool is_repeated = kinds.endsWith(QLatin1Char('+'));
  if (is_repeated) kinds.chop(1);
  if (kinds.isEmpty()) return fields.isEmpty();
  if (fields.isEmpty() || fields.size() % kinds.size() != 0) return false;
  if (!is_repeated && fields.size() != kinds.size()) return false;
  for (int i = 0; i < fields.size(); ++i) {
    if (!ReadNumber(fields[i], kinds.at(i % kinds.size()), numbers)) return false;
  }
  return true;
}

}  // namespace

GuestLine ParseGuestLine(const QString& line) {
  const int colon = line.indexOf(QLatin1Char(':'));
  const LineForm* form = FindForm(line.left(colon));
  if (!form) return {};
  GuestLine result;
  const QString rest = colon < 0 ? QString() : line.mid(colon + 1);
  if (qstrcmp(form->fields, "t") == 0) {
    if (colon < 0) return {};
    result.text = rest;
  } else {
    const QStringList fields = colon < 0 ? QStringList() : rest.split(QLatin1Char(':'));
    if (!ReadNumbers(fields, QLatin1String(form->fields), &result.numbers)) return {};
  }
  result.kind = form->kind;
  return result;
}

AddressedLine SplitDisplay(const QString& event) {
  const int colon = event.indexOf(QLatin1Char(':'));
  bool is_display = false;
  const int display = event.left(colon).toInt(&is_display);
  if (colon < 0 || !is_display) return {};
  return {display, event.mid(colon + 1)};
}

}  // namespace tavi
