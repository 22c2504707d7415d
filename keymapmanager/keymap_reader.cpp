#include "keymapmanager/keymap_reader.h"

#include <QSet>

#include "keymap/spell_config_item.h"
#include "keymapmanager/checks/keymap_checks.h"
#include "keymapmanager/fields/field_hints.h"
#include "keymapmanager/fields/record_tables.h"
#include "keymapmanager/nearest_word.h"
#include "keymapmanager/yaml/yaml_scalar.h"

namespace tavikeymapmanager {

namespace {

constexpr int kFormat = 1;

const QString kFormatField = QStringLiteral("format");
const QString kNameField = QStringLiteral("name");
const QString kPackageField = QStringLiteral("package");
const QString kSettingsField = QStringLiteral("settings");
const QString kWheelField = QStringLiteral("wheel");
const QString kItemsField = QStringLiteral("items");
const QString kTypeField = QStringLiteral("type");
const QString kLabelField = QStringLiteral("label");

QStringList TopFields() { return {kFormatField, kNameField, kPackageField, kSettingsField, kWheelField, kItemsField}; }

// A click without a chord is a plain item.
void Simplify(std::unique_ptr<ConfigItem>* item) {
  if ((*item)->type != keywords::kTypeClick) return;
  if (IsKeySet(static_cast<const ComposableConfigItem&>(**item).first_key)) return;
  *item = std::make_unique<ConfigItem>(**item);
}

const SwipeholdConfigItem* FirstWalk(const SourcedItems& items) {
  for (const SourcedItem& sourced : items) {
    if (sourced.item->type == keywords::kTypeSwipehold) return static_cast<SwipeholdConfigItem*>(sourced.item.get());
  }
  return nullptr;
}

bool WritesAny(const YamlNode& node, const QStringList& fields) {
  for (const QString& field : fields) {
    if (FindValue(node, field) != nullptr) return true;
  }
  return false;
}

void CopyKeys(const SwipeholdConfigItem& from, SwipeholdConfigItem* to) {
  to->key_up = from.key_up;
  to->key_right = from.key_right;
  to->key_down = from.key_down;
  to->key_left = from.key_left;
}

// The inner walk takes over keys that are held for the ordinary one, and its contact is already on the skill button.
void CompleteInnerWalk(const YamlNode& node, const SwipeholdConfigItem* walk, SpellConfigItem* spell) {
  SwipeholdConfigItem& inner = spell->inner_swipehold;
  if (!WritesAny(node, {QStringLiteral("point")})) {
    const bool has_alt = spell->alt_rel_x != 0 || spell->alt_rel_y != 0;
    inner.rel_x = has_alt ? spell->alt_rel_x : spell->rel_x;
    inner.rel_y = has_alt ? spell->alt_rel_y : spell->rel_y;
  }
  const bool has_keys = WritesAny(node, {QStringLiteral("key_up"), QStringLiteral("key_right"),
                                         QStringLiteral("key_down"), QStringLiteral("key_left")});
  if (!has_keys && walk != nullptr) CopyKeys(*walk, &inner);
}

void CompleteInnerWalks(const SourcedItems& items) {
  const SwipeholdConfigItem* walk = FirstWalk(items);
  for (const SourcedItem& sourced : items) {
    const YamlNode* inner = FindValue(*sourced.node, QStringLiteral("inner_swipehold"));
    auto* spell = dynamic_cast<SpellConfigItem*>(sourced.item.get());
    if (spell != nullptr && inner != nullptr) CompleteInnerWalk(*inner, walk, spell);
  }
}

void Store(SourcedItems* items, LoadResult* result) {
  for (SourcedItem& sourced : *items) {
    result->item_sources += {sourced.node->span.line, sourced.node->span.column, sourced.label};
    result->config->items += sourced.item.release();
  }
}

}  // namespace

std::unique_ptr<KeymapConfig> DefaultConfig() {
  auto config = std::make_unique<KeymapConfig>();
  config->settings = new KeymapSettings;
  config->wheel_settings = new WheelSettings;
  return config;
}

LoadResult KeymapReader::Read(const YamlNode& root) {
  LoadResult result;
  result.config = DefaultConfig();
  if (root.kind == YamlNode::Kind::kMapping) {
    ReadFields(root, &result);
  } else {
    diagnostics_->Error(root.span, QStringLiteral("expected the fields of a keymap (%1), got %2")
                                       .arg(TopFields().join(QStringLiteral(", ")), Describe(root)));
  }
  if (diagnostics_->ErrorCount() > 0) {
    result.config = DefaultConfig();  // no file is loaded in part
  } else {
    Store(&items_, &result);
  }
  return result;
}

void KeymapReader::ReadFields(const YamlNode& root, LoadResult* result) {
  ReportDuplicates(root);
  ReadFormat(root);
  for (size_t i = 0; i < root.keys.size(); ++i) {
    const YamlNode& name = root.keys[i];
    const YamlNode& value = root.children[i];
    if (name.text == kFormatField) continue;
    if (name.text == kNameField) {
      ReadText(name.text, value, &result->name);
    } else if (name.text == kPackageField) {
      ReadText(name.text, value, &result->package);
    } else if (name.text == kSettingsField) {
      ReadSettings(SettingsTable(), value, result->config->settings);
    } else if (name.text == kWheelField) {
      ReadSettings(WheelTable(), value, result->config->wheel_settings);
    } else if (name.text == kItemsField) {
      ReadItems(value);
    } else {
      diagnostics_->Error(name.span, QStringLiteral("unknown field '%1' of a keymap%2")
                                         .arg(Shown(name.text), HintForField(name.text, TopFields())));
    }
  }
  CompleteInnerWalks(items_);
  KeymapChecks(items_, *result->config->wheel_settings, diagnostics_).Run();
}

void KeymapReader::ReportDuplicates(const YamlNode& node) {
  QSet<QString> names;
  for (const YamlNode& key : node.keys) {
    if (names.contains(key.text)) {
      diagnostics_->Error(key.span, QStringLiteral("'%1' occurs twice").arg(Shown(key.text)));
    }
    names += key.text;
  }
  for (const YamlNode& child : node.children) ReportDuplicates(child);
}

void KeymapReader::ReadFormat(const YamlNode& root) {
  const YamlNode* format = FindValue(root, kFormatField);
  if (format == nullptr) {
    diagnostics_->Error(root.span, QStringLiteral("the keymap has no 'format: %1'").arg(kFormat));
  } else if (NumberOf(*format) != kFormat) {
    diagnostics_->Error(format->span,
                        QStringLiteral("'format': expected %1, got %2").arg(kFormat).arg(Describe(*format)));
  }
}

void KeymapReader::ReadText(const QString& field, const YamlNode& node, QString* value) {
  if (const auto text = TextOf(node)) {
    *value = *text;
    return;
  }
  const bool needs_quotes = NumberOf(node) || BoolOf(node);
  diagnostics_->Error(node.span,
                      QStringLiteral("'%1': expected a text, got %2%3")
                          .arg(field, Describe(node), needs_quotes ? QStringLiteral("; put it in quotes") : QString()));
}

void KeymapReader::ReadSettings(const RecordTable& table, const YamlNode& node, const RecordRef& record) {
  if (IsNull(node)) return;  // all fields are commented out
  if (node.kind == YamlNode::Kind::kMapping) {
    records_.Read(table, node, {}, record);
  } else {
    diagnostics_->Error(node.span, QStringLiteral("'%1': expected fields, got %2").arg(table.name, Describe(node)));
  }
}

void KeymapReader::ReadItems(const YamlNode& node) {
  if (IsNull(node)) return;
  if (node.kind != YamlNode::Kind::kSequence) {
    diagnostics_->Error(node.span, QStringLiteral("'items': expected a list, got %1").arg(Describe(node)));
    return;
  }
  for (const YamlNode& child : node.children) {
    if (diagnostics_->HasEnough()) return;
    ReadItem(child);
  }
}

void KeymapReader::ReadItem(const YamlNode& node) {
  const int errors_before = diagnostics_->ErrorCount();
  const RecordTable* table = ReadType(node);
  if (table == nullptr) return;  // without a type the other fields have no meaning
  SourcedItem sourced{table->create(), table, &node, {}, false};
  records_.Read(*table, node, {kTypeField, kLabelField}, sourced.item.get());
  if (const YamlNode* label = FindValue(node, kLabelField)) ReadLabel(*label, &sourced.label);
  Simplify(&sourced.item);
  sourced.is_good = diagnostics_->ErrorCount() == errors_before;
  items_.push_back(std::move(sourced));
}

const RecordTable* KeymapReader::ReadType(const YamlNode& node) {
  if (node.kind != YamlNode::Kind::kMapping) {
    diagnostics_->Error(node.span, QStringLiteral("expected the fields of an item, got %1").arg(Describe(node)));
    return nullptr;
  }
  const YamlNode* type = FindValue(node, kTypeField);
  if (type == nullptr) {
    diagnostics_->Error(node.span, QStringLiteral("the item has no 'type'"));
    return nullptr;
  }
  const auto text = TextOf(*type);
  const RecordTable* table = text ? FindItemTable(*text) : nullptr;
  if (table == nullptr) {
    const QString hint = text ? DidYouMean(*text, ItemTypes()) : QString();
    diagnostics_->Error(type->span, QStringLiteral("unknown item type: %1%2").arg(Describe(*type), hint));
  }
  return table;
}

void KeymapReader::ReadLabel(const YamlNode& node, QString* label) {
  if (const auto text = TextOf(node)) {
    *label = *text;
  } else {
    diagnostics_->Error(node.span, QStringLiteral("'label': expected a text, got %1").arg(Describe(node)));
  }
}

}  // namespace tavikeymapmanager
