// Stories of the workers of rapid taps without a run: their signals.
#ifndef TESTS_SUPPORT_BUNCH_WORKER_STORY_H_
#define TESTS_SUPPORT_BUNCH_WORKER_STORY_H_

#include <utility>

#include "tests/support/story.h"

namespace taviinputmanager {

class BunchWorkerStory : public Story {
 protected:
  // "this" is written in these lambdas because clang counts it as unused in a generic one otherwise.
  template <typename Worker>
  void ListenToContinue(Worker* worker) {
    QObject::connect(worker, &Worker::BunchTapPressed, [this](auto... what) { this->Add("press", what...); });
    QObject::connect(worker, &Worker::BunchTapReleased, [this](auto... what) { this->Add("release", what...); });
    QObject::connect(worker, &Worker::BunchTapFinished, [this](auto... what) { this->Add("finish", what...); });
  }
  template <typename Worker>
  void ListenToOneOff(Worker* worker) {
    QObject::connect(worker, &Worker::OneOffBunchTapPressed, [this](auto... what) { this->Add("press", what...); });
    QObject::connect(worker, &Worker::OneOffBunchTapReleased, [this](auto... what) { this->Add("release", what...); });
    QObject::connect(worker, &Worker::OneOffBunchTapFinished, [this](auto... what) { this->Add("finish", what...); });
  }
  // A held run and a single tap, of an item that changes after they were created.
  template <typename ContinueWorker, typename OneOffWorker, typename Item>
  void PlayBothWhileTheItemChanges(Item item) {
    ContinueWorker held(&item);
    OneOffWorker once(&item);
    item = Item();
    ListenToContinue(&held);
    ListenToOneOff(&once);
    held.Process();
    held.Stop(QStringLiteral("keyboard"), {}, 17);  // W
    once.OneOffProcess();
    Wait(25);
  }
  // The signals since the last call: "press, release". Each has the point (0.25, 0.5) or the button "LB".
  std::string Said() { return std::exchange(said_, {}).join(", ").toStdString(); }

 private:
  void Add(const char* what, double x, double y) {
    EXPECT_EQ(0.25, x);
    EXPECT_EQ(0.5, y);
    said_.append(QString::fromLatin1(what));
  }
  void Add(const char* what, const QString& text) {
    EXPECT_EQ("LB", text);
    said_.append(QString::fromLatin1(what));
  }

  QStringList said_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_BUNCH_WORKER_STORY_H_
