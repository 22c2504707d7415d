#include "tests/record/json/hostile_records.h"

#include <QJsonDocument>

#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

const char* const kGood[] = {
    ("{'info':{'package_name':'p','resolution_x':8,'create_time':5,'total_running_time':6},"
     " 'control':{'repeat_times':2,'repeat_delay':3,'speed_ratio':1.5},"
     " 'actions':[{'timing':7,'type':'vcontrol','data':'{\\'params\\':{\\'app\\':\\'A\\'}}','extra1':'','extra2':''},"
     " {'timing':-9,'type':'touch','data':'release','extra1':'2','extra2':'\\u4f60 \\ud83d\\ude00'},"
     " {'timing':2147483648,'type':'touch','data':'\xe4\xbd\xa0/\xf0\x9f\x98\x80','extra1':'2:3'}]}"),
    ("{'info':{'package_name':'p'},'control':{'repeat_times':2},'merged_actions':["
     " {'control':{'till_next_item_delay':4,'repeat_times':2},'actions':[{'timing':7,'data':'marker'}]},"
     " {'merged_actions':[{'actions':[{'type':'touch','data':'a'}]},{'actions':[]}]}]}"),
    ("{'actions':[{'data':5,'timing':'x','type':null,'extra1':true,'extra2':[{}],'more':{'deep':[1,2.5,-0.0,1e3]}}],"
     " 'info':{'create_time':9007199254740993,'mine':[[]]},'merged_actions':[{'actions':[]}],'other':-0}"),
};

// The tokens of JSON, unusual ones, and the words of records.
const char* const kWords[] = {
    "{",
    "}",
    "[",
    "]",
    ",",
    ":",
    "'",
    "\\",
    "\\'",
    "\\u00e9",
    "\\ud800",
    "\\x",
    "\xef\xbb\xbf",
    "\xc3\xa9",
    "\xff",
    "\x01",
    "\x7f",
    " ",
    "\n",
    "\t",
    "0",
    "-0",
    "1.5",
    "1e-7",
    "1e400",
    "123456789012345",
    "1234567890123456",
    "9007199254740993",
    "true",
    "null",
    "{}",
    "[]",
    "'info':{'a':1},",
    "'actions':[],",
    "'merged_actions':[],",
    "'control':{},",
    "'timing':3,",
    "'data':'x',",
    "'':0,",
    "'\\u0061':1,",
    "/",
};

}  // namespace

QList<QByteArray> RecordsToSpoil() {
  QList<QByteArray> records;
  for (const char* record : kGood) {
    records.append(Text(record));
    records.append(QJsonDocument::fromJson(Text(record)).toJson());
  }
  return records;
}

QByteArray HostileRecords::Next() {
  QByteArray record = good_.at(Below(good_.size()));
  for (int left = Below(4); left >= 0; --left) Spoil(&record);
  return record;
}

QByteArray HostileRecords::NextWritten() {
  const QByteArray record = Next();
  QByteArray written = QJsonDocument::fromJson(record).toJson();
  if (written.isEmpty()) return record;
  if (Below(2) == 0) Spoil(&written);
  return written;
}

QByteArray HostileRecords::PieceOf(const QByteArray& record) {
  const int start = Below(record.size());
  return record.mid(start, Below(40));
}

void HostileRecords::Spoil(QByteArray* record) {
  const int place = Below(record->size() + 1);
  switch (Below(6)) {
    case 0: record->insert(place, Text(kWords[Below(static_cast<int>(std::size(kWords)))])); break;
    case 1: record->replace(place, 1 + Below(3), Text(kWords[Below(static_cast<int>(std::size(kWords)))])); break;
    case 2: record->remove(place, 1 + Below(12)); break;
    case 3: record->insert(place, PieceOf(good_.at(Below(good_.size())))); break;
    case 4: record->insert(place, static_cast<char>(Below(256))); break;
    default: record->truncate(Below(20) == 0 ? place : record->size()); break;
  }
}

void ForEachRow(const QList<QByteArray>& words, int most, const std::function<void(const QByteArray&)>& visit) {
  const std::function<void(const QByteArray&, int)> extend = [&](const QByteArray& row, int left) {
    visit(row);
    if (left == 0) return;
    for (const QByteArray& word : words) extend(row + word, left - 1);
  };
  extend({}, most);
}

}  // namespace taviinputmanager
