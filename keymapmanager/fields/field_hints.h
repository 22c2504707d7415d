// Suggests what the author of an invalid field or number probably meant: the ends of messages.
#ifndef KEYMAPMANAGER_FIELDS_FIELD_HINTS_H_
#define KEYMAPMANAGER_FIELDS_FIELD_HINTS_H_

#include <QString>
#include <QStringList>

#include "keymapmanager/item_types.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

// For a field that is not valid here: where it is valid, otherwise the closest of the fields `known` here. Empty if
// none is close.
QString HintForField(const QString& name, const QStringList& known);

// For a number that a field does not accept: a decimal comma, or pixels instead of a fraction. Empty for others.
QString HintForNumber(const FieldInfo& field, const YamlNode& node);

// What was found in place of [x, y]; detects two numbers with decimal commas, which YAML reads as four.
QString DescribePair(const YamlNode& node);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_FIELD_HINTS_H_
