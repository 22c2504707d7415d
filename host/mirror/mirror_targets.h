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

// Sends the lines of this instance to others, each identified by the name that it listens under. An instance that
// cannot be reached or that disconnects is reported and dropped; the others continue.
//
// The library's mirror functions are plain functions, so there is one instance of this class in a process.
//
// Threads: main. Lines at the end of a replay come on another thread, and are queued to the main thread.
class MirrorTargets : public QObject {
  Q_OBJECT

 public:
  static MirrorTargets* GetInstance();

  void Add(const QString& name);
  void Remove(const QString& name);
  // The targets that are connected or being tried.
  QStringList Names() const;
  // Waits until all lines are sent, for at most a second in total: on Windows, lines that are still queued are lost
  // when the program ends.
  void Finish();

  // While one exists, nothing is sent: lines that came from another instance are not passed on, so that two instances
  // that mirror each other do not loop.
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
  // A line of this many characters was too long and was sent nowhere.
  void TooLong(int characters);

 private:
  friend struct MirrorFunctions;

  MirrorTargets();
  ~MirrorTargets() override;

  void Carry(const MirrorMessage& message, const QVector<QString>& targets);
  void Drop(const QString& name, const QString& problem);

  // deleteLater, because a socket may be emitting a signal.
  struct DeleteLater {
    void operator()(QLocalSocket* socket) const;
  };
  std::map<QString, std::unique_ptr<QLocalSocket, DeleteLater>> sockets_;
  int pauses_ = 0;
};

}  // namespace tavi

#endif  // HOST_MIRROR_MIRROR_TARGETS_H_
