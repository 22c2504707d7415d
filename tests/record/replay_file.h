// Record files that tests create.
#ifndef TESTS_RECORD_REPLAY_FILE_H_
#define TESTS_RECORD_REPLAY_FILE_H_

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace taviinputmanager {

// An action `timing` milliseconds after the previous one.
inline QJsonObject Step(int timing, const QString& type, const QString& data, const QString& extra1 = {},
                        const QString& extra2 = {}) {
  return {{"timing", timing}, {"type", type}, {"data", data}, {"extra1", extra1}, {"extra2", extra2}};
}
inline QJsonObject KeyDown(int timing, int code) {
  return Step(timing, "keyboard", QStringLiteral("keyboard_press:%1").arg(code));
}
inline QJsonObject KeyUp(int timing, int code) {
  return Step(timing, "keyboard", QStringLiteral("keyboard_release:%1").arg(code));
}
// `point` in the format of a file: "(0.5,0.5)".
inline QJsonObject TouchDown(int timing, int slot, const QString& point) {
  return Step(timing, "touch", "press_rel:" + point, QString::number(slot));
}
inline QJsonObject TouchUp(int timing, int slot) { return Step(timing, "touch", "release", QString::number(slot)); }

// Deletes all its files.
class ReplayFolder {
 public:
  QString Path(const QString& name) const { return folder_.path() + "/" + name; }
  QString SaveText(const QString& name, const QByteArray& text) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  }
  QString SaveJson(const QString& name, const QJsonObject& document) const {
    return SaveText(name, QJsonDocument(document).toJson());
  }
  QString Save(const QString& name, const QJsonArray& steps, const QJsonObject& control = {}) const {
    QJsonObject document{{"info", QJsonObject{{"package_name", "com.example.game"}}}, {"actions", steps}};
    if (!control.isEmpty()) document.insert("control", control);
    return SaveJson(name, document);
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_REPLAY_FILE_H_
