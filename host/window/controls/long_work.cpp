#include "host/window/controls/long_work.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>

namespace tavi {

bool DoLongWork(QWidget* parent, const QString& title, const std::function<void()>& work) {
  QProgressDialog dialog(title, QStringLiteral("Cancel"), 0, 0, parent);  // 0: the length is unknown
  dialog.setWindowModality(Qt::WindowModal);
  dialog.show();

  QThread* thread = QThread::create(work);
  QEventLoop loop;
  QObject::connect(thread, &QThread::finished, &loop, &QEventLoop::quit);
  QObject::connect(&dialog, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
  // Cancelled work may still be running when the program ends.
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, thread, [thread] { thread->wait(); });
  QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  thread->start();
  loop.exec();
  return !dialog.wasCanceled();
}

}  // namespace tavi
