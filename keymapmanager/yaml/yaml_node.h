// A YAML document as a tree in which every node knows its place.
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
  int end_line = 1;  // behind the last character
  int end_column = 1;
};

struct YamlNode {
  enum class Kind { kScalar, kSequence, kMapping };

  Kind kind = Kind::kScalar;
  YamlSpan span;
  int begin = 0;                   // in the text, in characters from 0, a byte order mark left out
  int end = 0;                     // behind the last character; of a block, that of its last child
  bool in_brackets = false;        // a sequence or mapping of one line's style: [a, b], {a: b}
  QString text;                    // of a scalar
  bool quoted = false;             // a scalar in quotes or a block of text: never a number or a keyword of YAML
  std::vector<YamlNode> keys;      // of a mapping, all scalars; keys[i] names children[i]
  std::vector<YamlNode> children;  // of a sequence or mapping
};

struct YamlError {
  YamlSpan span;
  QString message;
};

// Reads the one document of `text`; an empty document is a null scalar. On a syntax error gives nothing and fills
// `error`. Refused beside what YAML refuses: aliases, tags, a second document, names of fields that are no scalars, and
// nesting deeper than 64 levels, whose cost grows faster than its length.
std::optional<YamlNode> ParseYaml(const QByteArray& text, YamlError* error);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_YAML_YAML_NODE_H_
