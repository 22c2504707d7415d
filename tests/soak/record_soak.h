// What soaks with replays have in common.
#ifndef TESTS_SOAK_RECORD_SOAK_H_
#define TESTS_SOAK_RECORD_SOAK_H_

#include <QFile>
#include <QTemporaryDir>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// A story with numbered record files.
class RecordSoak : public Story {
 protected:
  QString RecordPath(int id) const { return records_.filePath(QStringLiteral("%1.json").arg(id)); }

  // Stops all replays. A last one, of the number `id`, is stopped by the user, which releases everything that replays
  // hold.
  void EndReplays(int id) {
    StopAllReplay();
    QFile last(RecordPath(id));
    ASSERT_TRUE(last.open(QIODevice::WriteOnly));
    last.write(R"({"info":{"package_name":"x"},"actions":[]})");
    last.close();
    StartReplay(0, id, QString(), last.fileName(), {});
    Wait(1);
    StopReplay(id, last.fileName(), true);
    Wait(1);
  }

 private:
  QTemporaryDir records_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SOAK_RECORD_SOAK_H_
