// The cost of tavi's window, off screen.
//
//   tavi_bench_window    opens the window with a keymap of 30 items, drags an item in a keymap of 2,000, and prints the
//                        figures as JSON
//
// Seconds are processor time, so other load on the machine does not count. They do not include the window system's
// work: converting colours and copying to the screen.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>

#include "host/window/editor/edit_layer.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/main_window.h"
#include "keymapmanager/key_names.h"

namespace tavi {
namespace {

constexpr int kUsualItems = 30;
constexpr int kManyItems = 2000;
constexpr int kColumns = 50;  // of the items on the screen
constexpr int kSteps = 60;    // of a drag

double SecondsNow() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

QPointF PlaceOf(int item) {
  return {(item % kColumns + 0.5) / kColumns, (item / kColumns % kColumns + 0.5) / kColumns};
}

// Two keys, so that there are enough chords for all items.
QString ChordOf(int item) {
  const QStringList keys = tavikeymapmanager::AllKeyNames();
  return QStringLiteral("%1 + %2").arg(keys.at(item % kColumns), keys.at(kColumns + item / kColumns));
}

// Clicks in a grid, each with a chord and a label.
QString WriteKeymap(const QTemporaryDir& folder, int items) {
  QFile file(folder.filePath(QStringLiteral("%1.yaml").arg(items)));
  if (!file.open(QIODevice::WriteOnly)) return {};
  file.write("format: 1\nitems:\n");
  for (int item = 0; item < items; ++item) {
    const QPointF place = PlaceOf(item);
    file.write(QStringLiteral("  - {type: Click, label: Tap %1, key: %2, point: [%3, %4]}  # a tap\n")
                   .arg(item)
                   .arg(ChordOf(item))
                   .arg(place.x())
                   .arg(place.y())
                   .toUtf8());
  }
  return file.fileName();
}

// Returns when nothing is left to draw.
void Settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

// The time from the start of the program to the window's first frame.
double FirstFrame(const QTemporaryDir& folder) {
  MainWindow window;
  window.LoadKeymap(WriteKeymap(folder, kUsualItems));
  window.show();
  window.grab();
  return SecondsNow();
}

void Send(EditLayer* layer, QEvent::Type type, const QPointF& place, Qt::MouseButton button) {
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, place, place, layer->mapToGlobal(place.toPoint()), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(layer, &event);
  Settle();
}

struct Drag {
  double grip = 0;
  std::vector<double> steps;
  double drop = 0;
};

Drag DragAnItem(const QTemporaryDir& folder) {
  MainWindow window;
  window.LoadKeymap(WriteKeymap(folder, kManyItems));
  window.show();
  window.Editor()->Switch()->setChecked(true);
  Settle();
  EditLayer* layer = window.Editor()->Layer();
  const QPointF size(layer->width(), layer->height());
  const QPointF start = PlaceOf(kManyItems / 2);
  const auto at = [&](int step) {
    return QPointF((start.x() + 0.005 * step) * size.x(), (start.y() - 0.002 * step) * size.y());
  };
  Drag drag;
  const auto timed = [&](QEvent::Type type, int step, Qt::MouseButton button) {
    const double before = SecondsNow();
    Send(layer, type, at(step), button);
    return SecondsNow() - before;
  };
  drag.grip = timed(QEvent::MouseButtonPress, 0, Qt::LeftButton);
  for (int step = 1; step <= kSteps; ++step) drag.steps.push_back(timed(QEvent::MouseMove, step, Qt::NoButton));
  drag.drop = timed(QEvent::MouseButtonRelease, kSteps, Qt::LeftButton);
  window.Editor()->Document()->UndoStack()->undo();  // leaves without a question
  return drag;
}

int Print() {
  const QTemporaryDir folder;
  const double first_frame = FirstFrame(folder);
  Drag drag = DragAnItem(folder);
  std::sort(drag.steps.begin(), drag.steps.end());
  std::printf(
      "{\"first_frame_s\": %.4f, \"drag_items\": %d, \"grip_s\": %.4f, \"drag_step_s\": %.4f, "
      "\"drag_step_worst_s\": %.4f, \"drop_s\": %.4f}\n",
      first_frame, kManyItems, drag.grip, drag.steps[drag.steps.size() / 2], drag.steps.back(), drag.drop);
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace tavi

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return tavi::Print();
}
