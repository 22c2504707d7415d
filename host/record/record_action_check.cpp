#include "host/record/record_action_check.h"

#include <optional>

#include <QStringList>

#include "host/record/record_file.h"
#include "qt/numbers.h"

namespace tavi {

using Kind = RecordTouch::Kind;

namespace {

const QString kNoPoint = QStringLiteral("data: \"%1\" is not a point such as (0.5,0.25); dropped");
const QString kNoCoordinate = QStringLiteral("data: a coordinate of \"%1\" is not a number and reads as 0");
const QString kCorner = QStringLiteral("data: (0,0) is not a valid point; dropped");
const QString kUnknownData = QStringLiteral("data: \"%1\" is not a command of this type; dropped");
const QString kNoNumber = QStringLiteral("%1: \"%2\" is not a whole number and reads as 0");

bool IsWholeNumber(const QString& text) {
  bool is_number = false;
  qt::ToInt(text, &is_number);
  return is_number;
}

struct PointText {
  QPointF point;
  bool is_dropped = false;
  QString problem;
};

// "(0.5,0.25)", with the rules of a replay: a coordinate that is not a number is 0, and the corner (0,0) is not a
// point.
PointText ReadPoint(const QString& text) {
  const QStringList parts = text.split(QLatin1Char(','));
  if (!text.startsWith(QLatin1Char('(')) || !text.endsWith(QLatin1Char(')')) || parts.size() != 2) {
    return {{}, true, kNoPoint.arg(text)};
  }
  bool is_x = false;
  bool is_y = false;
  const QPointF point(qt::ToDouble(parts[0].mid(1), &is_x), qt::ToDouble(parts[1].chopped(1), &is_y));
  if (point.isNull()) return {point, true, is_x && is_y ? kCorner : kNoPoint.arg(text)};
  return {point, false, is_x && is_y ? QString() : kNoCoordinate.arg(text)};
}

// "word:argument"; nothing for any other number of colons.
std::optional<QString> OnlyArgument(const QString& data) {
  const QStringList parts = data.split(QLatin1Char(':'));
  if (parts.size() != 2) return std::nullopt;
  return parts[1];
}

QString SlotProblem(const QString& slot) {
  return IsWholeNumber(slot) ? QString() : kNoNumber.arg(QStringLiteral("extra1"), slot);
}

RecordTouch Dropped(const QString& problem) { return {Kind::kDropped, {}, problem}; }

RecordTouch ReadPress(const RecordAction& action) {
  const std::optional<QString> text = OnlyArgument(action.data);
  if (!text) return Dropped(kUnknownData.arg(action.data));
  const PointText point = ReadPoint(*text);
  if (point.is_dropped) return Dropped(point.problem);
  const QString problem = point.problem.isEmpty() ? SlotProblem(action.extra1) : point.problem;
  return {Kind::kPress, {{qt::ToInt(action.extra1), point.point}}, problem};
}

RecordTouch ReadMultiPress(const RecordAction& action) {
  const QStringList points = action.data.split(QLatin1Char(':')).mid(1);
  const QStringList numbers = action.extra1.split(QLatin1Char(':'));
  if (points.size() != numbers.size()) {
    return Dropped(
        QStringLiteral("data: %1 points and %2 slots in extra1; dropped").arg(points.size()).arg(numbers.size()));
  }
  RecordTouch touch{Kind::kPress, {}, {}};
  for (int i = 0; i < points.size(); ++i) {
    const PointText point = ReadPoint(points[i]);
    if (!point.is_dropped) touch.contacts.append(RecordContact{qt::ToInt(numbers[i]), point.point});
    if (touch.problem.isEmpty()) touch.problem = point.problem.isEmpty() ? SlotProblem(numbers[i]) : point.problem;
  }
  return touch;
}

RecordTouch ReadMultiRelease(const RecordAction& action) {
  if (action.extra1.isEmpty()) return Dropped(QStringLiteral("extra1: no slots; dropped"));
  RecordTouch touch{Kind::kRelease, {}, {}};
  for (const QString& number : action.extra1.split(QLatin1Char(':'))) {
    touch.contacts.append(RecordContact{qt::ToInt(number), {}});
    if (touch.problem.isEmpty()) touch.problem = SlotProblem(number);
  }
  return touch;
}

QString TouchProblem(const RecordAction& action) { return ReadTouch(action).problem; }

QString KeyboardProblem(const RecordAction& action) {
  const bool is_known = action.data.startsWith(QLatin1String("keyboard_press")) ||
                        action.data.startsWith(QLatin1String("keyboard_release"));
  const std::optional<QString> code = OnlyArgument(action.data);
  if (!is_known || !code) return kUnknownData.arg(action.data);
  return IsWholeNumber(*code) ? QString() : kNoNumber.arg(QStringLiteral("data"), *code);
}

QString MouseProblem(const RecordAction& action) {
  const bool is_known = action.data.startsWith(QLatin1String("wheel")) || action.data.startsWith(QLatin1String("move"));
  const std::optional<QString> point = OnlyArgument(action.data);
  return is_known && point ? ReadPoint(*point).problem : kUnknownData.arg(action.data);
}

QString InputMethodProblem(const RecordAction& action) {
  for (const QLatin1String word : {QLatin1String("text_inject"), QLatin1String("text_control")}) {
    if (action.data.startsWith(word) && action.data.size() > word.size()) return {};
  }
  return kUnknownData.arg(action.data);
}

QString JoystickProblem(const RecordAction& action) {
  return action.data.isEmpty() ? QStringLiteral("data: empty; dropped") : QString();
}

// Its meaning is up to the host.
QString HostCommandProblem(const RecordAction& /*action*/) { return {}; }

struct ActionType {
  const char* name;
  QString (*problem)(const RecordAction& action);
};

constexpr ActionType kTypes[] = {
    {"vcontrol", HostCommandProblem}, {"touch", TouchProblem},       {"keyboard", KeyboardProblem},
    {"mouse", MouseProblem},          {"joystick", JoystickProblem}, {"input_method", InputMethodProblem},
};

}  // namespace

RecordTouch ReadTouch(const RecordAction& action) {
  if (action.data.startsWith(QLatin1String("press_rel"))) return ReadPress(action);
  if (action.data == QLatin1String("release")) {
    return {Kind::kRelease, {{qt::ToInt(action.extra1), {}}}, SlotProblem(action.extra1)};
  }
  if (action.data.startsWith(QLatin1String("press_multi_rel"))) return ReadMultiPress(action);
  if (action.data == QLatin1String("release_multi")) return ReadMultiRelease(action);
  if (action.data == QLatin1String("reset")) return {Kind::kReset, {}, {}};
  return Dropped(kUnknownData.arg(action.data));
}

QString ActionProblem(const RecordAction& action) {
  if (action.type.isEmpty()) return QStringLiteral("type: empty; the replay ends here");
  for (const ActionType& type : kTypes) {
    if (action.type == QLatin1String(type.name)) return type.problem(action);
  }
  return QStringLiteral("type: \"%1\" is unknown; the action is a pause").arg(action.type);
}

}  // namespace tavi
