// Reads the fields of a file into the fields of records, by the tables.
#ifndef KEYMAPMANAGER_FIELDS_RECORD_READER_H_
#define KEYMAPMANAGER_FIELDS_RECORD_READER_H_

#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/fields/field.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

// The value of a field; null if the mapping has no field with that name.
const YamlNode* FindValue(const YamlNode& mapping, const QString& name);

// "expected a number from 0 to 1": the values that a field accepts, for messages.
QString ExpectationOf(const Field& field);

class RecordReader {
 public:
  explicit RecordReader(DiagnosticList* diagnostics) : diagnostics_(diagnostics) {}

  // Fills `record` from the mapping `node`. Fields in `also_known` are read elsewhere. Reports every unknown, missing
  // and invalid field; an invalid one leaves the record's value unchanged.
  void Read(const RecordTable& table, const YamlNode& node, const QStringList& also_known, const RecordRef& record);

 private:
  void ReadField(const Field& field, const YamlNode& node, const RecordRef& record);
  void ReportMissing(const RecordTable& table, const YamlNode& node);

  bool ReadFlag(const YamlNode& node, bool* value);
  bool ReadInteger(const Field& field, const YamlNode& node, int* value);
  bool ReadNumber(const Field& field, const YamlNode& node, double* value);
  bool ReadWord(const Field& field, const YamlNode& node, QString* value);
  bool ReadPair(const Field& field, const YamlNode& node, const FieldTarget& target);
  bool ReadCommands(const Field& field, const YamlNode& node, QStringList* value);
  bool ReadPoints(const Field& field, const YamlNode& node, QString* value);
  bool ReadMatrix(const Field& field, const YamlNode& node, QString* value);
  bool ReadPadButton(const YamlNode& node, QString* value);
  bool ReadWalk(const YamlNode& node, SwipeholdConfigItem* value);
  void ReadKeys(const Field& field, const YamlNode& node, const FieldTarget& target);

  DiagnosticList* diagnostics_;  // not owned
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_RECORD_READER_H_
