// Record files as tests write them.
#ifndef TESTS_HOST_RECORD_RECORD_TEXT_H_
#define TESTS_HOST_RECORD_RECORD_TEXT_H_

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include "host/record/record_file.h"

namespace tavi {

constexpr char kHeader[] = R"("info": {"package_name": "com.example.game", "resolution_x": 1000, "resolution_y": 500})";
constexpr char kMarker[] = R"({"timing": 0, "type": "vcontrol", "data": "go"})";

// A file with a valid header, followed by `rest`: R"("actions": [...])".
inline QByteArray WithHeader(const QByteArray& rest) { return QByteArray("{") + kHeader + ", " + rest + "}"; }

// A file with a start marker followed by these actions.
inline QByteArray WithActions(const QByteArray& actions) {
  return WithHeader(QByteArray(R"("actions": [)") + kMarker + (actions.isEmpty() ? "" : ", ") + actions + "]");
}

inline RecordFile ReadRecordText(const QByteArray& text) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("a.json")));
  if (file.open(QIODevice::WriteOnly)) file.write(text);
  file.close();
  return ReadRecordFile(file.fileName());
}

}  // namespace tavi

#endif  // TESTS_HOST_RECORD_RECORD_TEXT_H_
