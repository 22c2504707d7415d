// Headers that most files of the library include and nobody changes.
#include <cmath>
#include <functional>
#include <memory>

#include <QEvent>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVector>
