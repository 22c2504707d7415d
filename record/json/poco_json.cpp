#include "record/json/poco_json.h"

#include <sstream>

#include <Poco/Exception.h>
#include <Poco/JSON/Object.h>
#include <Poco/JSON/ParseHandler.h>
#include <Poco/JSON/Parser.h>
#include <Poco/JSON/Stringifier.h>

#include "record/record_format.h"

namespace taviinputmanager::poco_json {
namespace {

constexpr unsigned kIndent = 4;       // columns per level
constexpr int kStepAsIndent = -1;     // for a nested level: the same
constexpr std::size_t kDepth = 1024;  // levels that QJsonDocument reads; deeper documents are invalid for all readers

Poco::Dynamic::Var Read(const std::string& document) {
  Poco::JSON::Parser parser(new Poco::JSON::ParseHandler(false));
  parser.setDepth(kDepth);
  return parser.parse(document);
}

std::string Write(const Poco::Dynamic::Var& value, unsigned indent) {
  std::ostringstream text;
  Poco::JSON::Stringifier::stringify(value, text, indent, kStepAsIndent, Poco::JSON_WRAP_STRINGS);
  return text.str();
}

std::string Word(QLatin1String word) { return {word.data(), static_cast<std::size_t>(word.size())}; }

}  // namespace

bool IsWrittenSo(const std::string& value) {
  const std::string list = '[' + value + ']';
  try {
    return Write(Read(list), 0) == list;
  } catch (const Poco::Exception&) {
    return false;
  }
}

std::optional<std::string> Stamped(const std::string& document, qint64 create_time) {
  const auto root = Read(document).extract<Poco::JSON::Object::Ptr>();
  const std::string info = Word(record_format::kInfo);
  if (!root->has(info)) return std::nullopt;
  root->getObject(info)->set(Word(record_format::kCreateTime), static_cast<Poco::Int64>(create_time));
  return Write(root, kIndent);
}

}  // namespace taviinputmanager::poco_json
