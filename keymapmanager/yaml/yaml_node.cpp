#include "keymapmanager/yaml/yaml_node.h"

#include <algorithm>
#include <yaml.h>

namespace tavikeymapmanager {

namespace {

constexpr int kMaxDepth = 64;

// The parser's messages for the most common mistakes, and what the author should look for.
struct Hint {
  const char* problem;
  const char* hint;
};
constexpr Hint kHints[] = {
    {"mapping values are not allowed in this context", "a text that contains ': ' needs quotes"},
    {"found character that cannot start any token",
     "indent with spaces; a text that begins with @, ` or % needs quotes"},
    {"could not find expected ':'", "a field is written as name, ':' and a space"},
    {"did not find expected '-' indicator", "the entries of a list begin at one column, each with '- '"},
    {"did not find expected key", "the fields of one item begin at one column"},
    {"did not find expected ',' or ']'", "a list in brackets has commas between its entries and ends with ']'"},
    {"did not find expected ',' or '}'", "fields in braces have commas between them and end with '}'"},
};

QString HintFor(const QString& problem) {
  for (const Hint& row : kHints) {
    if (problem == QLatin1String(row.problem)) return QStringLiteral(" (%1)").arg(QLatin1String(row.hint));
  }
  return {};
}

YamlSpan SpanOf(const yaml_mark_t& start, const yaml_mark_t& end) {
  return {static_cast<int>(start.line) + 1, static_cast<int>(start.column) + 1, static_cast<int>(end.line) + 1,
          static_cast<int>(end.column) + 1};
}

// Owns an event of the parser.
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  ~Event() { yaml_event_delete(&event_); }

  yaml_event_t* get() { return &event_; }
  const yaml_event_t* operator->() const { return &event_; }
  YamlSpan span() const { return SpanOf(event_.start_mark, event_.end_mark); }
  int begin() const { return static_cast<int>(event_.start_mark.index); }
  int end() const { return static_cast<int>(event_.end_mark.index); }

 private:
  yaml_event_t event_{};
};

// Pulls events and builds the tree. The recursion is at most kMaxDepth deep.
class Parser {
 public:
  Parser(const QByteArray& text, YamlError* error) : text_(text), error_(error) {
    yaml_parser_initialize(&parser_);
    yaml_parser_set_input_string(&parser_, reinterpret_cast<const unsigned char*>(text.constData()),
                                 static_cast<size_t>(text.size()));
  }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;
  ~Parser() { yaml_parser_delete(&parser_); }

  bool ParseDocument(YamlNode* root);

 private:
  bool Next(Event* event);
  bool ParseNode(const Event& event, int depth, YamlNode* node);
  bool ParseScalar(const Event& event, YamlNode* node);
  bool ParseChildren(yaml_event_type_t end, int depth, YamlNode* node);
  bool ParseEntry(const Event& key_event, int depth, YamlNode* node);
  bool ParseNext(int depth, std::vector<YamlNode>* nodes);
  bool Fail(const YamlSpan& span, const QString& message);
  bool FailAtProblem();
  YamlSpan SpanOfByte(size_t offset) const;

  yaml_parser_t parser_{};
  const QByteArray& text_;
  YamlError* error_;
};

bool Parser::ParseDocument(YamlNode* root) {
  Event stream_start, document_start;
  if (!Next(&stream_start) || !Next(&document_start)) return false;
  if (document_start->type == YAML_STREAM_END_EVENT) return true;  // an empty file
  Event content, document_end, next;
  if (!Next(&content) || !ParseNode(content, 1, root) || !Next(&document_end) || !Next(&next)) return false;
  if (next->type == YAML_STREAM_END_EVENT) return true;
  return Fail(next.span(), QStringLiteral("a second document begins here; a keymap file contains only one"));
}

bool Parser::Next(Event* event) { return yaml_parser_parse(&parser_, event->get()) != 0 || FailAtProblem(); }

bool Parser::ParseNode(const Event& event, int depth, YamlNode* node) {
  if (event->type == YAML_ALIAS_EVENT) {
    return Fail(event.span(), QStringLiteral("an alias; aliases are not used in keymaps, repeat the value"));
  }
  if (event->type == YAML_SCALAR_EVENT) return ParseScalar(event, node);
  if (depth > kMaxDepth) return Fail(event.span(), QStringLiteral("nested deeper than %1 levels").arg(kMaxDepth));
  const bool is_mapping = event->type == YAML_MAPPING_START_EVENT;
  const yaml_char_t* tag = is_mapping ? event->data.mapping_start.tag : event->data.sequence_start.tag;
  if (tag != nullptr) return Fail(event.span(), QStringLiteral("a tag; tags are not used in keymaps"));
  node->kind = is_mapping ? YamlNode::Kind::kMapping : YamlNode::Kind::kSequence;
  node->span = event.span();
  node->begin = event.begin();
  node->end = event.begin();
  return ParseChildren(is_mapping ? YAML_MAPPING_END_EVENT : YAML_SEQUENCE_END_EVENT, depth, node);
}

bool Parser::ParseScalar(const Event& event, YamlNode* node) {
  const auto& scalar = event->data.scalar;
  if (scalar.tag != nullptr) return Fail(event.span(), QStringLiteral("a tag; tags are not used in keymaps"));
  node->span = event.span();
  node->begin = event.begin();
  node->end = event.end();
  node->text = QString::fromUtf8(reinterpret_cast<const char*>(scalar.value), static_cast<int>(scalar.length));
  node->quoted = scalar.style != YAML_PLAIN_SCALAR_STYLE;
  return true;
}

bool Parser::ParseChildren(yaml_event_type_t end, int depth, YamlNode* node) {
  for (;;) {
    Event event;
    if (!Next(&event)) return false;
    if (event->type == end) {
      node->in_brackets = event.begin() != event.end();
      if (!node->in_brackets) {  // a block ends where the next text begins, which is not a useful position
        if (!node->children.empty()) node->end = node->children.back().end;
        return true;
      }
      node->end = event.end();
      node->span.end_line = event.span().end_line;
      node->span.end_column = event.span().end_column;
      return true;
    }
    if (node->kind == YamlNode::Kind::kMapping) {
      if (!ParseEntry(event, depth, node)) return false;
      continue;
    }
    node->children.emplace_back();
    if (!ParseNode(event, depth + 1, &node->children.back())) return false;
  }
}

bool Parser::ParseEntry(const Event& key_event, int depth, YamlNode* node) {
  if (key_event->type == YAML_MAPPING_START_EVENT || key_event->type == YAML_SEQUENCE_START_EVENT) {
    return Fail(key_event.span(), QStringLiteral("expected the name of a field"));
  }
  node->keys.emplace_back();
  if (!ParseNode(key_event, depth + 1, &node->keys.back())) return false;
  return ParseNext(depth + 1, &node->children);
}

bool Parser::ParseNext(int depth, std::vector<YamlNode>* nodes) {
  Event event;
  if (!Next(&event)) return false;
  nodes->emplace_back();
  return ParseNode(event, depth, &nodes->back());
}

bool Parser::Fail(const YamlSpan& span, const QString& message) {
  *error_ = {span, message};
  return false;
}

bool Parser::FailAtProblem() {
  const QString problem = QString::fromUtf8(parser_.problem);
  if (parser_.error == YAML_READER_ERROR) return Fail(SpanOfByte(parser_.problem_offset), problem);
  const QString context = QString::fromUtf8(parser_.context);
  const bool in_quotes = context == QLatin1String("while scanning a quoted scalar");
  if (in_quotes && problem == QLatin1String("found unexpected end of stream")) {
    return Fail(SpanOf(parser_.context_mark, parser_.context_mark), QStringLiteral("a quote that is never closed"));
  }
  QString message = problem + HintFor(problem);
  if (!context.isEmpty()) message = QStringLiteral("%1, %2").arg(context, message);
  return Fail(SpanOf(parser_.problem_mark, parser_.problem_mark), message);
}

// The reader has no marks: counts lines and UTF-8 characters up to a byte.
YamlSpan Parser::SpanOfByte(size_t offset) const {
  YamlSpan span;
  const auto end = text_.begin() + std::min(offset, static_cast<size_t>(text_.size()));
  for (auto byte = text_.begin(); byte != end; ++byte) {
    const bool is_continuation = (static_cast<unsigned char>(*byte) & 0xC0) == 0x80;
    if (*byte == '\n') {
      ++span.line;
      span.column = 1;
    } else if (!is_continuation) {
      ++span.column;
    }
  }
  span.end_line = span.line;
  span.end_column = span.column;
  return span;
}

}  // namespace

std::optional<YamlNode> ParseYaml(const QByteArray& text, YamlError* error) {
  YamlNode root;
  if (!Parser(text, error).ParseDocument(&root)) return {};
  return root;
}

}  // namespace tavikeymapmanager
