// A host with a window. It prints the lines for the guest.
//
//   host_window KEYMAP
#include <cstdio>
#include <cstring>

#include <QApplication>

#include "guest_view.h"

namespace {

QtMessageHandler qt_messages = nullptr;

// A keymap load writes its diagnostics to Qt's log. A host shows them to the author of the keymap.
void ShowFindings(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool is_finding = context.category && std::strcmp(context.category, "tavi.keymap") == 0;
  if (!is_finding) return qt_messages(type, context, message);
  std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

}  // namespace

int main(int argc, char** argv) {
  qt_messages = qInstallMessageHandler(ShowFindings);
  const QApplication application(argc, argv);
  GuestView view;
  view.resize(1280, 720);
  view.Start(QApplication::arguments().value(1));
  view.show();
  return QApplication::exec();
}
