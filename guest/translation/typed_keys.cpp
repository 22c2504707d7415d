#include "guest/translation/typed_keys.h"

#include <linux/input-event-codes.h>

namespace taviguest {

namespace {

struct LayoutKey {
  int code;
  char plain;
  char shifted;  // 0: none
};

constexpr LayoutKey kLayout[] = {
    {KEY_GRAVE, '`', '~'},       {KEY_1, '1', '!'},          {KEY_2, '2', '@'},     {KEY_3, '3', '#'},
    {KEY_4, '4', '$'},           {KEY_5, '5', '%'},          {KEY_6, '6', '^'},     {KEY_7, '7', '&'},
    {KEY_8, '8', '*'},           {KEY_9, '9', '('},          {KEY_0, '0', ')'},     {KEY_MINUS, '-', '_'},
    {KEY_EQUAL, '=', '+'},       {KEY_Q, 'q', 'Q'},          {KEY_W, 'w', 'W'},     {KEY_E, 'e', 'E'},
    {KEY_R, 'r', 'R'},           {KEY_T, 't', 'T'},          {KEY_Y, 'y', 'Y'},     {KEY_U, 'u', 'U'},
    {KEY_I, 'i', 'I'},           {KEY_O, 'o', 'O'},          {KEY_P, 'p', 'P'},     {KEY_LEFTBRACE, '[', '{'},
    {KEY_RIGHTBRACE, ']', '}'},  {KEY_BACKSLASH, '\\', '|'}, {KEY_A, 'a', 'A'},     {KEY_S, 's', 'S'},
    {KEY_D, 'd', 'D'},           {KEY_F, 'f', 'F'},          {KEY_G, 'g', 'G'},     {KEY_H, 'h', 'H'},
    {KEY_J, 'j', 'J'},           {KEY_K, 'k', 'K'},          {KEY_L, 'l', 'L'},     {KEY_SEMICOLON, ';', ':'},
    {KEY_APOSTROPHE, '\'', '"'}, {KEY_Z, 'z', 'Z'},          {KEY_X, 'x', 'X'},     {KEY_C, 'c', 'C'},
    {KEY_V, 'v', 'V'},           {KEY_B, 'b', 'B'},          {KEY_N, 'n', 'N'},     {KEY_M, 'm', 'M'},
    {KEY_COMMA, ',', '<'},       {KEY_DOT, '.', '>'},        {KEY_SLASH, '/', '?'}, {KEY_SPACE, ' ', 0},
    {KEY_TAB, '\t', 0},          {KEY_ENTER, '\n', 0},       {KEY_ENTER, '\r', 0},  {KEY_BACKSPACE, '\b', 0},
    {KEY_DELETE, 0x7F, 0},
};

constexpr char32_t kLastLetterControl = 26;  // Control and Z
constexpr char32_t kLetterOfControl = 0x60;  // difference between a control character and its lower-case letter

std::optional<TypedKey> KeyInLayout(char32_t character) {
  for (const LayoutKey& key : kLayout) {
    if (character == static_cast<unsigned char>(key.plain)) return TypedKey{key.code};
    if (character == static_cast<unsigned char>(key.shifted)) return TypedKey{key.code, KEY_LEFTSHIFT};
  }
  return std::nullopt;
}

}  // namespace

std::optional<TypedKey> KeyThatTypes(char32_t character) {
  if (character == 0) return std::nullopt;  // no character, and a gap in the layout
  const std::optional<TypedKey> key = KeyInLayout(character);
  if (key || character > kLastLetterControl) return key;
  return TypedKey{KeyInLayout(character + kLetterOfControl)->code, KEY_LEFTCTRL};
}

bool IsCharacterKey(int code) { return CharacterOfKey(code, false) != 0; }

char CharacterOfKey(int code, bool is_shifted) {
  for (const LayoutKey& key : kLayout) {
    if (key.code != code) continue;
    if (key.plain < ' ' || key.plain > '~') return 0;
    return is_shifted && key.shifted != 0 ? key.shifted : key.plain;
  }
  return 0;
}

}  // namespace taviguest
