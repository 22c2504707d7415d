// A YAML document as a tree in which every node has its position.
#ifndef KEYMAPMANAGER_YAML_YAML_NODE_H_
#define KEYMAPMANAGER_YAML_YAML_NODE_H_

#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>

namespace tavikeymapmanager {

// Lines and columns from 1, columns in characters.
struct YamlSpan {
  int line = 1;
  int column = 1;
  int end_line = 1;  // after the last character
  int end_column = 1;
};

struct YamlNode {
  enum class Kind { kScalar, kSequence, kMapping };

  Kind kind = Kind::kScalar;
  YamlSpan span;
  int begin = 0;                   // in the text, in characters from 0, without a byte order mark
  int end = 0;                     // after the last character; for a block, that of its last child
  bool in_brackets = false;        // a sequence or mapping in flow style: [a, b], {a: b}
  QString text;                    // of a scalar
  bool quoted = false;             // a quoted or block scalar: never a number or a YAML keyword
  std::vector<YamlNode> keys;      // of a mapping, all scalars; keys[i] names children[i]
  std::vector<YamlNode> children;  // of a sequence or mapping
};

struct YamlError {
  YamlSpan span;
  QString message;
};

// Parses the only document of `text`; an empty document is a null scalar. On a syntax error returns nothing and sets
// `error`. In addition to invalid YAML, it refuses aliases, tags, a second document, field names that are not scalars,
// and nesting of more than 64 levels, because its cost grows faster than its length.
std::optional<YamlNode> ParseYaml(const QByteArray& text, YamlError* error);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_YAML_YAML_NODE_H_
