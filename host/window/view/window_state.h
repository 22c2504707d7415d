#ifndef HOST_WINDOW_VIEW_WINDOW_STATE_H_
#define HOST_WINDOW_VIEW_WINDOW_STATE_H_

#include <QColor>
#include <QObject>
#include <QString>
#include <QVector>

namespace tavi {

class Mapping;

// A state of the window in a word or two.
struct StateWord {
  QString text;
  QColor color;
  bool is_strong = false;  // keys and mouse do something that a player may not expect
};

// What keys and mouse do at the moment, collected from all objects that know a part of it.
//
// Main thread.
class WindowState : public QObject {
  Q_OBJECT

 public:
  // `mapping` is not owned.
  explicit WindowState(const Mapping* mapping, QObject* parent = nullptr);

  // Shown with the label for a paused mapping.
  void SetPauseKey(const QString& name);

  // An editor gets mouse and keys.
  void SetEditing(bool editing);

  // The mapping first, then the other states.
  QVector<StateWord> Words() const;
  StateWord MappingWord() const;

 Q_SIGNALS:
  void Changed();

 private:
  const Mapping* mapping_;
  QString pause_key_;
  bool is_editing_ = false;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_WINDOW_STATE_H_
