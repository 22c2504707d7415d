"""The reference's tables of fields, generated from the schema."""


def number(value):
    return "%g" % value


def span(schema):
    return "%s to %s" % (number(schema["minimum"]), number(schema["maximum"]))


def words(schema):
    return " ".join("`%s`" % word for word in schema["enum"])


def list_form(schema):
    entry = schema["items"]
    if entry["type"] == "string":
        return "list of commands"
    if entry["type"] == "array":
        return "list of points [x, y], %s" % span(entry["items"])
    if schema.get("maxItems") == 2:
        return "[x, y], %s" % span(entry)
    return "list of %d numbers" % schema["minItems"]


def form(schema):
    """The notation of a field's value."""
    if "allOf" in schema:
        name = schema["allOf"][0]["$ref"].split("/")[-1]
        return {"key": "key", "chord": "key or chord", "inner_swipehold": "fields"}[name]
    if "anyOf" in schema:
        return "`%s`" % schema["anyOf"][0]["const"]
    if "enum" in schema:
        return words(schema)
    kind = schema["type"]
    if kind == "boolean":
        return "true or false"
    if kind == "array":
        return list_form(schema)
    if kind == "string":
        return "name"
    return {"integer": "whole number, ", "number": "number, "}[kind] + span(schema)


def default(schema, is_required):
    if is_required:
        return "required"
    if "default" not in schema:
        return ""
    value = schema["default"]
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, list):
        return "[%s]" % ", ".join(number(part) for part in value)
    return "`%s`" % value if isinstance(value, str) else number(value)


def row(name, schema, is_required):
    return "| `%s` | %s | %s | %s |" % (name, form(schema), default(schema, is_required), schema["description"])


def rows(record):
    """Field name to table row; `type` and `label` are documented once for all items."""
    return {
        name: row(name, schema, name in record["required"])
        for name, schema in record["properties"].items()
        if name not in ("type", "label")
    }
