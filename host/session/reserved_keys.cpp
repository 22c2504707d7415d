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

km::ConfigKey KeyOf(int scancode) {
  km::ConfigKey key;
  key.device = km::keywords::kDeviceKeyboard;
  key.scancode = scancode;
  return key;
}

// Alone, or as a part of a chord.
bool AnswersTo(const km::ConfigItem& item, const km::ConfigKey& key) {
  if (dynamic_cast<const km::TipConfigItem*>(&item) != nullptr) return false;  // a label has no key
  const auto* composable = dynamic_cast<const km::ComposableConfigItem*>(&item);
  return item.IsKeyMatch(key) || (composable != nullptr && km::IsSameKey(composable->first_key, key));
}

bool HasItemFor(const km::KeymapConfig& config, const QVector<int>& scancodes) {
  return std::any_of(config.items.begin(), config.items.end(), [&](const km::ConfigItem* item) {
    return std::any_of(scancodes.begin(), scancodes.end(), [&](int code) { return AnswersTo(*item, KeyOf(code)); });
  });
}

// A player with these items may hold all the modifiers at once; a combination without modifiers needs none.
bool MayBeHeld(const QVector<ModifierKeys>& modifiers, const km::KeymapConfig& config) {
  return std::all_of(modifiers.begin(), modifiers.end(),
                     [&](const ModifierKeys& keys) { return HasItemFor(config, keys.scancodes); });
}

QString MessageAbout(const QString& keeper, const KeyCombination& combination, const char* option) {
  QStringList held;
  for (const ModifierKeys& modifier : ModifiersOf(combination)) held += modifier.name;
  const QString when = held.isEmpty() ? QStringLiteral("never gets it")
                                      : QStringLiteral("does not get its key while %1 of this keymap %2 down")
                                            .arg(held.join(QStringLiteral(" and ")),
                                                 held.size() == 1 ? QStringLiteral("is") : QStringLiteral("are"));
  return QStringLiteral("%1 keeps %2 for itself, so this item %3; %4 sets another key")
      .arg(keeper, combination.name, when, QLatin1String(option));
}

}  // namespace

ReservedKeys::ReservedKeys(const QString& keeper, QObject* parent) : QObject(parent), keeper_(keeper) {
  QCoreApplication::instance()->installEventFilter(this);
}

ReservedKeys::~ReservedKeys() = default;

void ReservedKeys::Reserve(int id, const KeyCombination& combination, const char* option,
                           std::function<void()> action) {
  entries_.erase(std::remove_if(entries_.begin(), entries_.end(), [id](const Entry& entry) { return entry.id == id; }),
                 entries_.end());
  entries_.push_back({id, combination, option, std::move(action)});
}

QString ReservedKeys::NameOf(int id) const {
  for (const Entry& entry : entries_) {
    if (entry.id == id) return entry.combination.name;
  }
  return {};
}

QStringList ReservedKeys::NewsOf(km::KeymapConfig* config) const {
  QStringList news;
  for (const Entry& entry : entries_) {
    if (entry.combination.modifiers != Qt::NoModifier)
      continue;  // without its modifiers, the key belongs to the keymap
    km::ConfigKey key = KeyOf(entry.combination.scancode);
    km::ConfigKey none;
    if (!km::isConfigKeyMatch(config, &key, &none)) continue;
    news += QStringLiteral("%1 is a key of this keymap that %2 keeps for itself; %3 sets another key")
                .arg(entry.combination.name, keeper_, QLatin1String(entry.option));
  }
  return news;
}

QVector<km::Diagnostic> ReservedKeys::FindingsIn(const km::LoadResult& keymap) const {
  QVector<km::Diagnostic> findings;
  for (int i = 0; i < keymap.item_sources.size(); ++i) {
    for (const Entry& entry : entries_) {
      if (!AnswersTo(*keymap.config->items[i], KeyOf(entry.combination.scancode))) continue;
      if (!MayBeHeld(ModifiersOf(entry.combination), *keymap.config)) continue;
      km::Diagnostic finding;
      finding.severity = km::Diagnostic::Severity::kWarning;
      finding.line = finding.end_line = keymap.item_sources[i].line;
      finding.column = finding.end_column = keymap.item_sources[i].column;
      finding.message = MessageAbout(keeper_, entry.combination, entry.option);
      findings.append(finding);
    }
  }
  return findings;
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
    if (!repeats) std::function<void()>(entry.action)();  // a copy: the action may change the reserved keys
    return true;
  }
  return false;
}

// Nobody got the press, so nobody gets the release.
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
