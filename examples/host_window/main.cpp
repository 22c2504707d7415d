// A host with a window. What goes to the guest is printed.
//
//   host_window KEYMAP
#include <QApplication>

#include "guest_view.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  GuestView view;
  view.resize(1280, 720);
  view.Start(QApplication::arguments().value(1));
  view.show();
  return QApplication::exec();
}
