#ifndef HOST_WINDOW_SHOWN_KEYMAP_H_
#define HOST_WINDOW_SHOWN_KEYMAP_H_

#include <QObject>
#include <QString>
#include <QVector>

#include "host/picture/overlay_marks.h"
#include "host/window/findings/placed_finding.h"

namespace tavi {

class DiagnosticsPanel;
class KeymapSource;
class KeymapWatch;
class ReservedKeys;

// One keymap as a window shows it: what it puts on the screen, what is wrong with it, and whether its file is there.
//
// Main thread.
class ShownKeymap : public QObject {
  Q_OBJECT

 public:
  // `subject` is what the keymap is called in a sentence that begins with it; `prefix` stands before the numbers of its
  // findings.
  ShownKeymap(const QString& subject, const QString& prefix, QObject* parent = nullptr);

  // Tells of changes of this file from now on; an empty path is none. Before it is read, so that no change is missed.
  void Watch(const QString& path);
  // Takes in what was read, and what the window's own keys take from it.
  void Take(const KeymapSource& source, const ReservedKeys& reserved_keys);

  const QString& Path() const { return path_; }  // empty: none
  // The name of the file, for people.
  QString FileName() const;
  // The file and how much is in it, for people.
  QString Contents() const;
  const QVector<OverlayMark>& Marks() const { return marks_; }
  // Those that have a place on the screen.
  const QVector<PlacedFinding>& PlacedFindings() const { return findings_; }
  // Tells what is wrong. The window's layout owns it.
  DiagnosticsPanel* Panel() const { return panel_; }

 Q_SIGNALS:
  void FileChanged();
  void FileVanished();

 private:
  const QString prefix_;
  DiagnosticsPanel* panel_;
  KeymapWatch* watch_;
  QString path_;
  QString item_count_;  // for people
  QVector<OverlayMark> marks_;
  QVector<PlacedFinding> findings_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_SHOWN_KEYMAP_H_
