#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>

#include "record/file_sync.h"

namespace taviinputmanager {
namespace {

TEST(FileSync, WhatHasNothingToSyncIsSynced) {
  int ends[2];
  ASSERT_EQ(0, pipe(ends));
  QFile pipe_end;
  ASSERT_TRUE(pipe_end.open(ends[1], QIODevice::WriteOnly));
  EXPECT_TRUE(SyncFile(pipe_end));
  close(ends[0]);
  close(ends[1]);
}

// The descriptor is closed without the file's knowledge.
TEST(FileSync, AFailureIsTold) {
  int ends[2];
  ASSERT_EQ(0, pipe(ends));
  QFile pipe_end;
  ASSERT_TRUE(pipe_end.open(ends[1], QIODevice::WriteOnly));
  close(ends[0]);
  close(ends[1]);
  EXPECT_FALSE(SyncFile(pipe_end));
}

}  // namespace
}  // namespace taviinputmanager
