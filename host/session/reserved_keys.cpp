#include "host/session/reserved_keys.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>

#include "keymap/item_classes.h"
#include "keymap/keymap_functions.h"
#include "keymap/keywords.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace km = tavikeymapmanager;

namespace {

km::ConfigKey KeyOf(const KeyCombination& combination) {
  km::ConfigKey key;
  key.device = km::keywords::kDeviceKeyboard;
  key.scancode = combination.scancode;
  return key;
}

// Alone, or as a part of a chord.
bool AnswersTo(const km::ConfigItem& item, const km::ConfigKey& key) {
  if (dynamic_cast<const km::TipConfigItem*>(&item) != nullptr) return false;  // a label answers to no key
  const auto* composable = dynamic_cast<const km::ComposableConfigItem*>(&item);
  return item.IsKeyMatch(key) || (composable != nullptr && km::IsSameKey(composable->first_key, key));
}

}  // namespace

ReservedKeys::ReservedKeys(const QString& keeper, QObject* parent) : QObject(parent), keeper_(keeper) {
  QCoreApplication::instance()->installEventFilter(this);
}

ReservedKeys::~ReservedKeys() = default;

void ReservedKeys::Reserve(int id, const KeyCombination& combination, std::function<void()> action) {
  entries_.erase(std::remove_if(entries_.begin(), entries_.end(), [id](const Entry& entry) { return entry.id == id; }),
                 entries_.end());
  entries_.push_back({id, combination, std::move(action)});
}

QString ReservedKeys::NameOf(int id) const {
  for (const Entry& entry : entries_) {
    if (entry.id == id) return entry.combination.name;
  }
  return {};
}

QStringList ReservedKeys::FindIn(km::KeymapConfig* config) const {
  QStringList names;
  for (const Entry& entry : entries_) {
    if (entry.combination.modifiers != Qt::NoModifier) continue;  // without them it is the keymap's
    km::ConfigKey key = KeyOf(entry.combination);
    km::ConfigKey none;
    if (km::isConfigKeyMatch(config, &key, &none)) names += entry.combination.name;
  }
  return names;
}

QVector<km::Diagnostic> ReservedKeys::FindingsIn(const km::LoadResult& keymap) const {
  QVector<km::Diagnostic> findings;
  for (int i = 0; i < keymap.item_sources.size(); ++i) {
    for (const Entry& entry : entries_) {
      if (!AnswersTo(*keymap.config->items[i], KeyOf(entry.combination))) continue;
      km::Diagnostic finding;
      finding.severity = km::Diagnostic::Severity::kWarning;
      finding.line = finding.end_line = keymap.item_sources[i].line;
      finding.column = finding.end_column = keymap.item_sources[i].column;
      finding.message = MessageAbout(entry.combination);
      findings.append(finding);
    }
  }
  return findings;
}

QString ReservedKeys::MessageAbout(const KeyCombination& combination) const {
  const QString what = combination.modifiers == Qt::NoModifier
                           ? QStringLiteral("%1 keeps %2 for itself, so this item never gets it")
                           : QStringLiteral("%1 keeps %2 for itself, so this item does not get its key then");
  return what.arg(keeper_, combination.name) + QStringLiteral("; --pause-key and --panic-key take other keys");
}

bool ReservedKeys::eventFilter(QObject* /*watched*/, QEvent* event) { return Take(event); }

bool ReservedKeys::Take(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: return TakePress(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease: return TakeRelease(*static_cast<QKeyEvent*>(event));
    default: return false;
  }
}

bool ReservedKeys::TakePress(const QKeyEvent& event) {
  for (Entry& entry : entries_) {
    if (entry.is_down ? !entry.combination.IsKeyOf(event) : !entry.combination.Matches(event)) continue;
    const bool repeats =
        entry.is_down || event.isAutoRepeat() || (event.timestamp() != 0 && event.timestamp() == entry.released_at);
    entry.is_down = true;
    if (!repeats) std::function<void()>(entry.action)();  // a copy: the action may reserve anew
    return true;
  }
  return false;
}

// The press was nobody's, so that the release is nobody's too.
bool ReservedKeys::TakeRelease(const QKeyEvent& event) {
  for (Entry& entry : entries_) {
    if (!entry.is_down || !entry.combination.IsKeyOf(event)) continue;
    entry.is_down = event.isAutoRepeat();
    entry.released_at = event.timestamp();
    return true;
  }
  return false;
}

}  // namespace tavi
