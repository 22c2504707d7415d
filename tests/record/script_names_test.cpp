// The names of app and package in the start marker of a record.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

class ScriptNames : public testing::Test, protected RecordFiles {
 protected:
  // "app|package", for a file of one action with this data. A missing name stays "-".
  std::string NamesOf(const QString& data) {
    const QJsonObject action{{"type", "vcontrol"}, {"data", data}};
    return NamesIn(QJsonDocument(QJsonObject{{"actions", QJsonArray{action}}}).toJson());
  }
  std::string NamesIn(const QByteArray& json) {
    QString app = "-", package = "-";
    GetScriptAppAndPackage(Put("script.json", json), app, package);
    return (app + '|' + package).toStdString();
  }
};

TEST_F(ScriptNames, OfTheFirstAction) {
  EXPECT_EQ("Game|com.example", NamesOf(Text("{'cmd':'detect_app','params':{'app':'Game','package':'com.example'}}")));
  EXPECT_EQ("Game|com.example", NamesOf(Text("{'params':{'app':'Game','package':'com.example'}}")));
}

TEST_F(ScriptNames, WhatIsMissingLeavesItsOutput) {
  const struct {
    const char* name;
    const char* data;
    const char* names;
  } rows[] = {
      {"app only", "{'params':{'app':'A'}}", "A|-"},
      {"package only", "{'params':{'package':'P'}}", "-|P"},
      {"empty names are names", "{'params':{'package':'','app':''}}", "|"},
      {"what is no text is empty text", "{'params':{'package':7,'app':null}}", "|"},
      {"params empty", "{'params':{}}", "-|-"},
      {"no params", "{'app':'A','package':'P'}", "-|-"},
      {"params no object", "{'params':[{'app':'A'}]}", "-|-"},
      {"an array", "[{'params':{'app':'A'}}]", "-|-"},
      {"no JSON", "press_rel:(0.5,0.5)", "-|-"},
      {"cut off", "{'params':{'app':'A'", "-|-"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.names, NamesOf(Text(row.data))) << row.name;
}

TEST_F(ScriptNames, EveryBackslashIsTakenOutFirst) {
  EXPECT_EQ("A|P", NamesOf(Text("{\\'params\\':{\\'app\\':\\'A\\',\\'package\\':\\\\\\'P\\\\\\'}}")));
  EXPECT_EQ("AnB|", NamesOf(Text("{'params':{'app':'A\\nB','package':''}}"))) << "an escape is lost with it";
  EXPECT_EQ("-|-", NamesOf(Text("{'params':{'app':'a\\'b','package':'P'}}"))) << "an escaped quote breaks the text";
}

TEST_F(ScriptNames, OfAnyScript) {
  EXPECT_EQ("\xe6\xb8\xb8\xe6\x88\x8f|\xd0\xb8",
            NamesOf(QString::fromUtf8(Text("{'params':{'app':'\xe6\xb8\xb8\xe6\x88\x8f','package':'\xd0\xb8'}}"))));
}

TEST_F(ScriptNames, AreLookedForDownTheFirstItemOfEachLevel) {
  const QByteArray marker = "{'data': '{\\'params\\':{\\'app\\':\\'A\\',\\'package\\':\\'P\\'}}'}";
  const QByteArray other = "{'data': '{\\'params\\':{\\'app\\':\\'X\\',\\'package\\':\\'X\\'}}'}";
  const QByteArray good = "{'actions': [" + marker + ", " + other + "]}";
  const struct {
    const char* name;
    QByteArray json;
    const char* names;
  } rows[] = {
      {"one level", "{'merged_actions': [" + good + ", {'actions': [" + other + "]}]}", "A|P"},
      {"two levels", "{'merged_actions': [{'merged_actions': [" + good + "]}]}", "A|P"},
      {"actions win on the way",
       "{'merged_actions': [{'actions': [" + marker + "], 'merged_actions': [{'actions': [" + other + "]}]}]}", "A|P"},
      {"not down the second item", "{'merged_actions': [{}, " + good + "]}", "-|-"},
      {"not through an empty list", "{'merged_actions': [{'merged_actions': []}, " + good + "]}", "-|-"},
      {"not through what is no list", "{'merged_actions': {'0': " + good + "}}", "-|-"},
      {"not through an item that is none", "{'merged_actions': [[" + good + "]]}", "-|-"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.names, NamesIn(Text(row.json))) << row.name;
}

TEST_F(ScriptNames, OnlyTheFirstActionIsLookedAt) {
  const QByteArray marker = "{'data': '{\\'params\\':{\\'app\\':\\'A\\'}}'}";
  EXPECT_EQ("-|-", NamesIn(Text("{'actions': [{'data': 'release'}, " + marker + "]}")));
}

}  // namespace
}  // namespace taviinputmanager
