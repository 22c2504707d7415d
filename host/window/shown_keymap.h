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

// One keymap as a window shows it: its overlay, its diagnostics, and whether its file exists.
//
// Main thread.
class ShownKeymap : public QObject {
  Q_OBJECT

 public:
  // `subject` is the keymap's name at the start of a sentence; `prefix` precedes the numbers of its diagnostics.
  ShownKeymap(const QString& subject, const QString& prefix, QObject* parent = nullptr);

  // Signals changes of this file from now on; an empty path is none. Call it before reading the file, so that no change
  // is missed.
  void Watch(const QString& path);
  // Takes the result of a read, and the diagnostics about the window's own keys.
  void Take(const KeymapSource& source, const ReservedKeys& reserved_keys);

  const QString& Path() const { return path_; }  // empty: none
  // The name of the file, for display.
  QString FileName() const;
  // The file and the number of its items, for display.
  QString Contents() const;
  const QVector<OverlayMark>& Marks() const { return marks_; }
  // The diagnostics that have a point on the screen.
  const QVector<PlacedFinding>& PlacedFindings() const { return findings_; }
  // Shows the diagnostics. The window's layout owns it.
  DiagnosticsPanel* Panel() const { return panel_; }

 Q_SIGNALS:
  void FileChanged();
  void FileVanished();

 private:
  const QString prefix_;
  DiagnosticsPanel* panel_;
  KeymapWatch* watch_;
  QString path_;
  QString item_count_;  // for display
  QVector<OverlayMark> marks_;
  QVector<PlacedFinding> findings_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_SHOWN_KEYMAP_H_
