// What a scalar means: the core schema of YAML 1.2, in which `yes`, `On`, `010` and `1:30` are no special forms.
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

// A mapping without entries, or nothing at all where one may stand.
bool IsNull(const YamlNode& node);

// A name or text of the file as messages show it: on one line, its end left out where it is long.
QString Shown(const QString& text);

// "the number 12", "the text 'abc'", "a list": what stands there, for messages.
QString Describe(const YamlNode& node);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_YAML_YAML_SCALAR_H_
