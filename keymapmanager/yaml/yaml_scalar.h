// The value of a scalar in the core schema of YAML 1.2, in which `yes`, `On`, `010` and `1:30` have no special meaning.
#ifndef KEYMAPMANAGER_YAML_YAML_SCALAR_H_
#define KEYMAPMANAGER_YAML_YAML_SCALAR_H_

#include <optional>

#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

enum class ScalarType { kNull, kBool, kInteger, kFloat, kText };

// Of a scalar node.
ScalarType ScalarTypeOf(const YamlNode& node);

// The value of a node of type kBool; nothing for any other.
std::optional<bool> BoolOf(const YamlNode& node);
// The value of a node of type kInteger or kFloat, which may be infinite or not a number; nothing for any other.
std::optional<double> NumberOf(const YamlNode& node);
// The text of a node of type kText; nothing for any other.
std::optional<QString> TextOf(const YamlNode& node);

// A mapping without entries, or no value at all if that is allowed.
bool IsNull(const YamlNode& node);

// A name or text of the file in the form of messages: on one line, truncated if it is long.
QString Shown(const QString& text);

// "the number 12", "the text 'abc'", "a list": a description of the node, for messages.
QString Describe(const YamlNode& node);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_YAML_YAML_SCALAR_H_
