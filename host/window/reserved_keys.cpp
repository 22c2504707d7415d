#include "host/window/reserved_keys.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>

#include "keymap/keymap_functions.h"
#include "keymap/keywords.h"

namespace tavi {

ReservedKeys::ReservedKeys(QObject* parent) : QObject(parent) {
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

QStringList ReservedKeys::FindIn(tavikeymapmanager::KeymapConfig* config) const {
  QStringList names;
  for (const Entry& entry : entries_) {
    if (entry.combination.modifiers != Qt::NoModifier) continue;  // without them it is the keymap's
    tavikeymapmanager::ConfigKey key;
    key.device = tavikeymapmanager::keywords::kDeviceKeyboard;
    key.scancode = entry.combination.scancode;
    tavikeymapmanager::ConfigKey none;
    if (tavikeymapmanager::isConfigKeyMatch(config, &key, &none)) names += entry.combination.name;
  }
  return names;
}

bool ReservedKeys::eventFilter(QObject* /*watched*/, QEvent* event) {
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
