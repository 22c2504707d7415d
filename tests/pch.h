// Heads that every test reads.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVector>
