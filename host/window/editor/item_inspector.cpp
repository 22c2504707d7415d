#include "host/window/editor/item_inspector.h"

#include <iterator>
#include <utility>

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "host/look/theme.h"
#include "host/picture/keymap_overlay.h"
#include "host/window/editor/field_editor.h"
#include "host/window/editor/key_listener.h"
#include "host/window/editor/source_pane.h"

namespace tavi {

namespace km = tavikeymapmanager;
using km::FieldInfo;
using km::FieldKind;

namespace {

constexpr int kListHeight = 150;
const QString kLabel = QStringLiteral("label");

// The blocks of a keymap other than its items, in the order of the file.
struct BlockRow {
  const char* name;
  const char* doc;
  const char* example;
};

constexpr BlockRow kBlocks[] = {
    {"settings",
     "Settings of the whole keymap: which keys, mouse and gamepad input passes through, and how view control feels.",
     "settings:\n  keyboard_transparent: true"},
    {"wheel", "What the mouse wheel does when no item uses it.", "wheel:\n  wheel_delta: 1.0"},
};

FieldInfo LabelField() {
  FieldInfo label;
  label.name = kLabel;
  label.kind = FieldKind::kPadButton;  // a text
  label.doc = QStringLiteral("the label beside the key in the overlay");
  return label;
}

QStringList KeysOf(const KeymapDocument& document, int item) {
  QStringList keys;
  for (const FieldInfo& field : document.TypeOf(item).fields) {
    const QString key = IsKeyKind(field.kind) ? document.WrittenText(item, field.name) : QString();
    if (!key.isEmpty()) keys += key;
  }
  return keys;
}

QString ListText(const KeymapDocument& document, int item) {
  const QStringList keys = KeysOf(document, item);
  const QString label = document.WrittenText(item, kLabel);
  const QString name = label.isEmpty() ? document.Item(item)->type : label;
  return keys.isEmpty() ? name : name + QStringLiteral("  \u00B7  ") + keys.join(QStringLiteral(", "));
}

}  // namespace

ItemInspector::ItemInspector(KeymapDocument* document, QWidget* parent)
    : QWidget(parent),
      document_(document),
      list_(new QListWidget),
      title_(new QLabel),
      scroll_(new QScrollArea),
      pane_(new SourcePane),
      all_(new QCheckBox(QStringLiteral("All fields"))),
      as_text_(new QCheckBox(QStringLiteral("As text"))) {
  list_->setFixedHeight(kListHeight);
  list_->setAccessibleName(QStringLiteral("Items of the keymap"));
  scroll_->setAccessibleName(QStringLiteral("Fields of the item"));
  title_->setWordWrap(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  all_->setToolTip(QStringLiteral("Show fields that are not in the file, too"));
  as_text_->setToolTip(QStringLiteral("The lines of the file, lists of commands and points among them"));
  auto* switches = new QHBoxLayout;
  switches->addWidget(all_);
  switches->addWidget(as_text_);
  switches->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->addWidget(list_);
  layout->addWidget(title_);
  layout->addWidget(scroll_, 1);
  layout->addWidget(pane_, 1);
  layout->addLayout(switches);
  connect(document_, &KeymapDocument::Changed, this, &ItemInspector::TakeDocument);
  connect(list_, &QListWidget::currentRowChanged, this, &ItemInspector::TakeRow);
  connect(all_, &QCheckBox::toggled, this, &ItemInspector::ShowPart);
  connect(as_text_, &QCheckBox::toggled, this, [this] {
    LeavePart();
    ShowPart();
  });
  connect(pane_, &SourcePane::Entered, this, &ItemInspector::EnterSource);
  theme::Follow(this, [this] {
    ShowList();
    ShowPart();
  });
}

void ItemInspector::Show(int item) {
  if (item != item_) LeavePart();
  item_ = item;
  if (item >= 0) block_.clear();
  const QSignalBlocker blocker(list_);
  list_->setCurrentRow(Row());
  ShowPart();
}

void ItemInspector::ShowBlock(const QString& block) {
  LeavePart();
  block_ = block;
  item_ = -1;
  Q_EMIT ItemChosen(-1);
  Show(-1);
}

void ItemInspector::SetAsText(bool as_text) { as_text_->setChecked(as_text); }

void ItemInspector::TakeRow(int row) {
  const int block = row - document_->ItemCount();
  if (block >= 0) return ShowBlock(QLatin1String(kBlocks[block].name));
  Q_EMIT ItemChosen(row);
}

// Rows of the list, which ends with the blocks.
int ItemInspector::Row() const {
  int row = document_->ItemCount();
  for (const BlockRow& block : kBlocks) {
    if (block_ == QLatin1String(block.name)) return row;
    ++row;
  }
  return item_;
}

void ItemInspector::TakeDocument() {
  if (item_ >= document_->ItemCount()) item_ = -1;
  if (!document_->Refusal().isEmpty()) block_.clear();
  ShowList();
  ShowPart();
}

void ItemInspector::ShowList() {
  const QSignalBlocker blocker(list_);
  const int blocks = document_->Refusal().isEmpty() ? static_cast<int>(std::size(kBlocks)) : 0;
  const int rows = document_->ItemCount() + blocks;
  while (list_->count() > rows) delete list_->takeItem(list_->count() - 1);
  while (list_->count() < rows) list_->addItem(QString());
  for (int item = 0; item < document_->ItemCount(); ++item) {
    list_->item(item)->setText(ListText(*document_, item));
    list_->item(item)->setForeground(ColorOf(FamilyOf(document_->Item(item)->type)));
  }
  for (int block = 0; block < blocks; ++block) {
    QListWidgetItem* row = list_->item(document_->ItemCount() + block);
    row->setText(QLatin1String(kBlocks[block].name));
    row->setForeground(theme::Colors().faint_text);
  }
  list_->setCurrentRow(Row());
}

bool ItemInspector::IsShown(const FieldInfo& field) const {
  const bool is_usual = field.is_required || IsKeyKind(field.kind) || field.kind == FieldKind::kPair;
  return all_->isChecked() || is_usual || document_->Outline().items[item_].Find(field.name) != nullptr;
}

QVector<FieldInfo> ItemInspector::FieldsOf(int item) const {
  QVector<FieldInfo> fields{LabelField()};
  for (const FieldInfo& field : document_->TypeOf(item).fields) {
    if (IsShown(field)) fields.append(field);
  }
  return fields;
}

void ItemInspector::ShowPart() {
  const bool is_text = !block_.isEmpty() || (item_ >= 0 && as_text_->isChecked());
  if (item_ < 0 && !built_.isEmpty()) BuildFields({});  // first, because a hidden line reports what was typed in it
  all_->setVisible(item_ >= 0 && !is_text);
  as_text_->setVisible(item_ >= 0);
  scroll_->setVisible(item_ >= 0 && !is_text);
  pane_->setVisible(is_text);
  ShowTitle();
  if (item_ >= 0) ShowFields();
  ShowSource();
}

void ItemInspector::ShowTitle() {
  const auto title = [](const QString& name, const QColor& color, const QString& doc) {
    return QStringLiteral("<b style='color:%1'>%2</b><br><span style='color:%3'>%4</span>")
        .arg(color.name(), name, theme::Colors().faint_text.name(), doc.toHtmlEscaped());
  };
  for (const BlockRow& block : kBlocks) {
    if (block_ == QLatin1String(block.name)) return title_->setText(title(block_, theme::Colors().text, block.doc));
  }
  if (item_ >= 0) {
    const km::ItemTypeInfo& type = document_->TypeOf(item_);
    return title_->setText(title(type.name, ColorOf(FamilyOf(type.name)), type.doc));
  }
  title_->setText(document_->ItemCount() == 0 ? QStringLiteral("No items yet. Add puts the first one on the screen.")
                                              : QStringLiteral("Click an item on the screen or in the list."));
}

void ItemInspector::ShowFields() {
  const QVector<FieldInfo> fields = FieldsOf(item_);
  QStringList wanted{document_->TypeOf(item_).name, QString::number(item_)};
  for (const FieldInfo& field : fields) wanted += field.name;
  if (wanted == built_) return ShowValues();
  BuildFields(fields);
  built_ = wanted;
  ShowValues();
}

void ItemInspector::ShowSource() {
  if (pane_->isHidden()) return pane_->Show(QString(), QString());
  QString hint;
  for (const BlockRow& block : kBlocks) {
    if (block_ == QLatin1String(block.name)) hint = QStringLiteral("# not in the file, for example:\n") + block.example;
  }
  pane_->Show(document_->Source({item_, block_}), hint);
}

void ItemInspector::EnterSource(const QString& source) {
  pane_->ShowProblem(document_->SetSource({item_, block_}, source));
}

void ItemInspector::CommitSource() {
  pane_->Commit();
  if (!pane_->Problem().isEmpty()) Q_EMIT Refused(QStringLiteral("The text was not applied. ") + pane_->Problem());
}

QString ItemInspector::TextProblem() const { return pane_->isHidden() ? QString() : pane_->Problem(); }

void ItemInspector::LeavePart() {
  if (pane_->isHidden()) return;
  CommitSource();
  pane_->Revert();
}

// The signal that led here may come from an editor that is deleted now.
void ItemInspector::BuildFields(const QVector<FieldInfo>& fields) {
  // Their texts are still those of another item.
  for (FieldEditor* editor : std::as_const(editors_)) editor->disconnect(this);
  built_.clear();
  if (QWidget* before = scroll_->takeWidget()) {
    before->hide();
    before->deleteLater();
  }
  editors_.clear();
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  form->setContentsMargins(0, 0, 4, 0);
  form->setRowWrapPolicy(QFormLayout::DontWrapRows);
  for (const FieldInfo& field : fields) {
    auto* editor = new FieldEditor(field);
    connect(editor, &FieldEditor::Entered, this, [this, name = field.name](const QString& text) { Enter(name, text); });
    if (editor->Listener() != nullptr) {
      connect(editor->Listener(), &KeyListener::Bound, this, &ItemInspector::KeyBound);
    }
    auto* label = new QLabel(field.name);
    label->setToolTip(field.doc);
    form->addRow(label, editor);
    editors_.insert(field.name, editor);
  }
  scroll_->setWidget(page);
  QWidget* before = scroll_;
  for (const FieldInfo& field : fields) {
    for (QWidget* control : editors_.value(field.name)->Controls()) {
      QWidget::setTabOrder(before, control);
      before = control;
    }
  }
}

void ItemInspector::ShowValues() {
  for (auto editor = editors_.begin(); editor != editors_.end(); ++editor) {
    const QString written = document_->WrittenText(item_, editor.key());
    editor.value()->Show(written, km::TextOfField(*document_->Item(item_), editor.key()));
  }
}

void ItemInspector::Enter(const QString& field, const QString& text) {
  const QString problem = document_->SetField(item_, field, text.trimmed());
  FieldEditor* editor = Editor(field);
  if (!problem.isEmpty() && editor != nullptr) editor->ShowProblem(problem);
}

bool ItemInspector::HasKey() const { return item_ >= 0 && !KeysOf(*document_, item_).isEmpty(); }

void ItemInspector::ListenForKey() {
  if (item_ < 0) return;
  for (const FieldInfo& field : document_->TypeOf(item_).fields) {
    if (!IsKeyKind(field.kind)) continue;
    SetAsText(false);
    scroll_->ensureWidgetVisible(Editor(field.name));
    return Editor(field.name)->Listener()->Listen();
  }
}

void ItemInspector::Commit() {
  if (!pane_->isHidden()) return CommitSource();
  const auto editors = editors_.values();
  for (FieldEditor* editor : editors) {
    if (editors_.key(editor).isEmpty()) return;  // the first one has rebuilt everything
    editor->Commit();
  }
}

void ItemInspector::TakePad(const QString& text, bool down) {
  const auto editors = editors_.values();
  for (const FieldEditor* editor : editors) {
    if (editor->Listener() != nullptr && editor->Listener()->IsListening())
      return editor->Listener()->TakePad(text, down);
  }
}

}  // namespace tavi
