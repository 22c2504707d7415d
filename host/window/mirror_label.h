#ifndef HOST_WINDOW_MIRROR_LABEL_H_
#define HOST_WINDOW_MIRROR_LABEL_H_

#include <memory>

#include <QLabel>
#include <QString>
#include <QStringList>

namespace tavi {

class MirrorServer;

// Tells which instances get the lines of this one, and how many send theirs; hidden while there are none.
//
// Main thread.
class MirrorLabel : public QLabel {
  Q_OBJECT

 public:
  explicit MirrorLabel(QWidget* parent = nullptr);
  ~MirrorLabel() override;

  // Listens to another instance's lines under this name. Returns what is wrong, or nothing.
  QString ListenAs(const QString& name);
  // Carries what the guest gets to the instances of these names.
  void MirrorTo(const QStringList& names);

  // What tells this window from others of the same keymap; empty while it is in touch with none.
  QString TitlePart() const;

 Q_SIGNALS:
  // The title is another one.
  void Changed();
  // For the person; `is_problem`: something went wrong.
  void Message(const QString& text, bool is_problem);

 private:
  void ShowMirrors();

  std::unique_ptr<MirrorServer> server_;
  QString listens_as_;  // empty: to nobody
  int sources_ = 0;
};

}  // namespace tavi

#endif  // HOST_WINDOW_MIRROR_LABEL_H_
