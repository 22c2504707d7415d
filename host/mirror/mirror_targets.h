#ifndef HOST_MIRROR_MIRROR_TARGETS_H_
#define HOST_MIRROR_MIRROR_TARGETS_H_

#include <map>
#include <memory>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

class QLocalSocket;

namespace tavi {

struct MirrorMessage;

// Carries the lines of this instance to others, each known by the name that it listens under. One that cannot be
// reached, or that goes away, is reported and dropped; the rest go on.
//
// The library's mirror functions are plain functions, so there is one in a process.
//
// Threads: main. Lines of a replay's end come on another thread, and are taken over to it.
class MirrorTargets : public QObject {
  Q_OBJECT

 public:
  static MirrorTargets* GetInstance();

  void Add(const QString& name);
  void Remove(const QString& name);
  // Those that are reached or still tried.
  QStringList Names() const;

  // While one lives, nothing is carried: lines that came from another instance are not passed on, so that two that
  // mirror each other do not play for ever.
  class Pause {
   public:
    Pause() { ++GetInstance()->pauses_; }
    ~Pause() { --GetInstance()->pauses_; }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
  };

 Q_SIGNALS:
  void Reached(const QString& name);
  void Lost(const QString& name, const QString& problem);
  // A line of so many characters was carried nowhere.
  void TooLong(int characters);

 private:
  friend struct MirrorFunctions;

  MirrorTargets();
  ~MirrorTargets() override;

  void Carry(const MirrorMessage& message, const QVector<QString>& targets);
  void Drop(const QString& name, const QString& problem);

  // deleteLater, since a socket may be in the middle of a signal.
  struct DeleteLater {
    void operator()(QLocalSocket* socket) const;
  };
  std::map<QString, std::unique_ptr<QLocalSocket, DeleteLater>> sockets_;
  int pauses_ = 0;
};

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_TARGETS_H_
