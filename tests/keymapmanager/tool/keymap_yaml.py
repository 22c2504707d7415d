"""Reads YAML like the library: PyYAML with the scalars of YAML 1.2's core schema."""
import re

import yaml


class KeymapLoader(yaml.CSafeLoader):
    """PyYAML reads 1e-3, 010, 1:30 and On by the older YAML 1.1; this one reads them as the library does."""


KeymapLoader.yaml_implicit_resolvers = {}
KeymapLoader.yaml_constructors = dict(yaml.CSafeLoader.yaml_constructors)

_NULL = r"(?:null|Null|NULL|~|)"
_BOOL = r"(?:true|True|TRUE|false|False|FALSE)"
_INT = r"(?:[-+]?[0-9]+|0o[0-7]+|0x[0-9a-fA-F]+)"
_FLOAT = r"(?:[-+]?(?:\.[0-9]+|[0-9]+(?:\.[0-9]*)?)(?:[eE][-+]?[0-9]+)?|[-+]?(?:\.inf|\.Inf|\.INF)|\.nan|\.NaN|\.NAN)"

# First match wins: every whole number is also a number.
for tag, pattern in (("null", _NULL), ("bool", _BOOL), ("int", _INT), ("float", _FLOAT)):
    KeymapLoader.add_implicit_resolver("tag:yaml.org,2002:" + tag, re.compile("^" + pattern + r"\Z"), None)


def _construct_int(loader, node):
    text = loader.construct_scalar(node)
    for prefix, base in (("0o", 8), ("0x", 16)):
        if text.startswith(prefix):
            return int(text[2:], base)
    return int(text)


def _construct_float(loader, node):
    text = loader.construct_scalar(node).lower()
    return float(text.replace(".inf", "inf").replace(".nan", "nan"))


def _construct_bool(loader, node):
    return loader.construct_scalar(node).lower() == "true"


KeymapLoader.add_constructor("tag:yaml.org,2002:int", _construct_int)
KeymapLoader.add_constructor("tag:yaml.org,2002:float", _construct_float)
KeymapLoader.add_constructor("tag:yaml.org,2002:bool", _construct_bool)


def load(path):
    with open(path, "rb") as file:
        return yaml.load(file, Loader=KeymapLoader)
