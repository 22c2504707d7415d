#ifndef HOST_WINDOW_MIRROR_LABEL_H_
#define HOST_WINDOW_MIRROR_LABEL_H_

#include <memory>

#include <QLabel>
#include <QString>
#include <QStringList>

namespace tavi {

class MirrorServer;

// Shows which instances get this window's lines, and how many send theirs; hidden while there are none.
//
// Main thread.
class MirrorLabel : public QLabel {
  Q_OBJECT

 public:
  explicit MirrorLabel(QWidget* parent = nullptr);
  ~MirrorLabel() override;

  // Listens under this name to other instances' lines. Returns the error, or an empty string.
  QString ListenAs(const QString& name);
  // Sends the guest's lines to the instances with these names.
  void MirrorTo(const QStringList& names);

  // Distinguishes this window from others with the same keymap; empty without a connection.
  QString TitlePart() const;

 Q_SIGNALS:
  // The title has changed.
  void Changed();
  // A message for the user; `is_problem`: an error.
  void Message(const QString& text, bool is_problem);

 private:
  void ShowMirrors();

  std::unique_ptr<MirrorServer> server_;
  QString listens_as_;  // empty: does not listen
  int sources_ = 0;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MIRROR_LABEL_H_
