#include <cstdlib>
#include <cstring>

#include "platform/standin/failure.h"
#include "platform/standin/resource_scanner.h"
#include "platform/standin/resources.h"

namespace standin {
namespace {

// What a control statement stands for: the class and the style that it brings.
struct ControlStatement {
  const char* word;
  const char* className;
  DWORD style;
  bool hasText;
};
constexpr ControlStatement kControlStatements[] = {
    {"PUSHBUTTON", "Button", BS_PUSHBUTTON | WS_TABSTOP, true},
    {"DEFPUSHBUTTON", "Button", BS_DEFPUSHBUTTON | WS_TABSTOP, true},
    {"AUTORADIOBUTTON", "Button", BS_AUTORADIOBUTTON | WS_TABSTOP, true},
    {"AUTOCHECKBOX", "Button", BS_AUTOCHECKBOX | WS_TABSTOP, true},
    {"GROUPBOX", "Button", BS_GROUPBOX, true},
    {"LTEXT", "Static", SS_LEFT | WS_GROUP, true},
    {"CTEXT", "Static", SS_CENTER | WS_GROUP, true},
    {"EDITTEXT", "Edit", ES_LEFT | WS_BORDER | WS_TABSTOP, false},
    {"LISTBOX", "ListBox", LBS_NOTIFY | WS_BORDER, false},
    {"COMBOBOX", "ComboBox", CBS_SIMPLE | WS_TABSTOP, false},
};

class Reader {
 public:
  explicit Reader(const std::string& script) : tokens_(ScanResources(script)) {}

  Resources Read() {
    while (Current().kind != Token::Kind::End) ReadResource();
    return std::move(resources_);
  }

 private:
  [[noreturn]] void Fail(const Token& token) {
    Unsupported("resource script, line " + std::to_string(token.line) + ": \"" + token.text +
                "\" is not known here");
  }

  const Token& Current() const { return tokens_[place_]; }
  // Hands the current token over; the last one stays.
  Token Take() { return tokens_[place_ + 1 < tokens_.size() ? place_++ : place_]; }

  bool IsAt(const char* text) const {
    const Token& token = Current();
    return token.text == text && token.kind != Token::Kind::Text;
  }

  bool Accept(const char* text) {
    if (!IsAt(text)) return false;
    Take();
    return true;
  }

  void Expect(const char* text) {
    if (!Accept(text)) Fail(Current());
  }

  std::string Text() {
    if (Current().kind != Token::Kind::Text) Fail(Current());
    return Take().text;
  }

  DWORD Term() {
    if (Accept("-")) return static_cast<DWORD>(-static_cast<int>(Term()));
    const Token token = Take();
    if (token.kind != Token::Kind::Number) Fail(token);
    char* end = nullptr;
    const unsigned long number = std::strtoul(token.text.c_str(), &end, 0);
    if (*end && std::strcmp(end, "L") != 0) Fail(token);
    return static_cast<DWORD>(number);
  }

  int Number() { return static_cast<int>(Term()); }

  int NumberAfterComma() {
    Expect(",");
    return Number();
  }

  // Joins style words to what the statement brings; NOT takes a word away.
  DWORD Style(DWORD style) {
    do {
      if (Accept("NOT")) {
        style &= ~Term();
      } else {
        style |= Term();
      }
    } while (Accept("|"));
    return style;
  }

  template <class Target>
  void Place(Target& target) {
    target.x = Number();
    target.y = NumberAfterComma();
    target.width = NumberAfterComma();
    target.height = NumberAfterComma();
  }

  void ReadResource() {
    const int id = Number();
    const Token type = Take();
    if (type.text == "MENU") {
      resources_.menus[id] = ReadMenu();
    } else if (type.text == "DIALOGEX") {
      resources_.dialogs[id] = ReadDialog();
    } else if (type.text == "ICON") {
      Text();
      resources_.icons.insert(id);
    } else if (type.text == "RT_MANIFEST") {
      Text();  // Windows' own business
    } else if (type.text == "VERSIONINFO") {
      SkipVersion();  // nothing here asks for it
    } else {
      Fail(type);
    }
  }

  // Up to the END of the outermost block.
  void SkipVersion() {
    for (int depth = 0, blocks = 0; depth > 0 || blocks == 0; Take()) {
      if (Current().kind == Token::Kind::End) Fail(Current());
      if (IsAt("BEGIN")) ++depth, ++blocks;
      if (IsAt("END")) --depth;
    }
  }

  std::vector<MenuItemTemplate> ReadMenu() {
    std::vector<MenuItemTemplate> items;
    for (Expect("BEGIN"); !Accept("END");) {
      MenuItemTemplate item;
      if (Accept("POPUP")) {
        item.text = Text();
        item.flags = MF_POPUP;
        item.items = ReadMenu();
      } else {
        Expect("MENUITEM");
        if (Accept("SEPARATOR")) {
          item.flags = MF_SEPARATOR;
        } else {
          item.text = Text();
          item.id = static_cast<UINT>(NumberAfterComma());
        }
      }
      items.push_back(std::move(item));
    }
    return items;
  }

  DialogTemplate ReadDialog() {
    DialogTemplate dialog;
    Place(dialog);
    while (!IsAt("BEGIN")) {
      if (Accept("STYLE")) {
        dialog.style = Style(0);
      } else if (Accept("CAPTION")) {
        dialog.caption = Text();
      } else {
        Expect("FONT");
        dialog.fontSize = Number();
        Expect(",");
        Text();  // no letters are drawn
        dialog.style |= DS_SETFONT;
      }
    }
    for (Expect("BEGIN"); !Accept("END");) dialog.controls.push_back(ReadControl());
    return dialog;
  }

  ControlTemplate ReadControl() {
    const Token word = Take();
    ControlTemplate control;
    control.style = WS_CHILD | WS_VISIBLE;
    if (word.text == "CONTROL") {
      control.text = Text();
      control.id = NumberAfterComma();
      Expect(",");
      control.className = Text();
      Expect(",");
      control.style = Style(control.style);
      Expect(",");
      Place(control);
    } else {
      ReadShortControl(word, control);
    }
    if (Accept(",")) control.exStyle = Style(0);
    return control;
  }

  void ReadShortControl(const Token& word, ControlTemplate& control) {
    for (const ControlStatement& statement : kControlStatements) {
      if (word.text != statement.word) continue;
      control.className = statement.className;
      control.style |= statement.style;
      if (statement.hasText) {
        control.text = Text();
        Expect(",");
      }
      control.id = Number();
      Expect(",");
      Place(control);
      if (Accept(",")) control.style = Style(control.style);
      return;
    }
    Fail(word);
  }

  const std::vector<Token> tokens_;
  size_t place_ = 0;
  Resources resources_;
};

const char* embedded = nullptr;

}  // namespace

EmbeddedResources::EmbeddedResources(const char* text) { embedded = text; }

Resources ReadResources(const std::string& script) { return Reader(script).Read(); }

const Resources& ProgramResources() {
  static const auto* resources = new Resources(ReadResources(embedded ? embedded : ""));
  return *resources;
}

int ResourceNumber(LPCSTR name) {
  const auto number = reinterpret_cast<uintptr_t>(name);
  if (number > 0xFFFF) Unsupported(std::string("resources have numbers, not names: ") + name);
  return static_cast<int>(number);
}

}  // namespace standin
