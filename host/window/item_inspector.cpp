#include "host/window/item_inspector.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "host/editor/keymap_document.h"
#include "host/window/field_editor.h"
#include "host/window/key_listener.h"
#include "host/window/keymap_overlay.h"
#include "host/window/theme.h"

namespace tavi {

namespace km = tavikeymapmanager;
using km::FieldInfo;
using km::FieldKind;

namespace {

constexpr int kListHeight = 150;
const QString kLabel = QStringLiteral("label");

FieldInfo LabelField() {
  FieldInfo label;
  label.name = kLabel;
  label.kind = FieldKind::kPadButton;  // a text
  label.doc = QStringLiteral("the text that an overlay writes beside the key");
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
      all_(new QCheckBox(QStringLiteral("All fields"))) {
  list_->setFixedHeight(kListHeight);
  title_->setWordWrap(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  all_->setToolTip(QStringLiteral("Also those that the file does not write"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(8, 8, 8, 8);
  layout->addWidget(list_);
  layout->addWidget(title_);
  layout->addWidget(scroll_, 1);
  layout->addWidget(all_);
  connect(document_, &KeymapDocument::Changed, this, &ItemInspector::TakeDocument);
  connect(list_, &QListWidget::currentRowChanged, this, &ItemInspector::ItemChosen);
  connect(all_, &QCheckBox::toggled, this, &ItemInspector::ShowFields);
}

void ItemInspector::Show(int item) {
  item_ = item;
  const QSignalBlocker blocker(list_);
  list_->setCurrentRow(item);
  ShowFields();
}

void ItemInspector::TakeDocument() {
  if (item_ >= document_->ItemCount()) item_ = -1;
  ShowList();
  ShowFields();
}

void ItemInspector::ShowList() {
  const QSignalBlocker blocker(list_);
  while (list_->count() > document_->ItemCount()) delete list_->takeItem(list_->count() - 1);
  while (list_->count() < document_->ItemCount()) list_->addItem(QString());
  for (int item = 0; item < document_->ItemCount(); ++item) {
    list_->item(item)->setText(ListText(*document_, item));
    list_->item(item)->setForeground(ColorOf(FamilyOf(document_->Item(item)->type)));
  }
  list_->setCurrentRow(item_);
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

void ItemInspector::ShowFields() {
  if (item_ < 0 && !built_.isEmpty()) BuildFields({});
  all_->setVisible(item_ >= 0);
  scroll_->setVisible(item_ >= 0);
  if (item_ < 0) {
    title_->setText(document_->ItemCount() == 0
                        ? QStringLiteral("Nothing here yet. Add puts the first item on the screen.")
                        : QStringLiteral("Click an item on the screen or in the list."));
    built_.clear();
    return;
  }
  const km::ItemTypeInfo& type = document_->TypeOf(item_);
  title_->setText(
      QStringLiteral("<b style='color:%1'>%2</b><br><span style='color:%3'>%4</span>")
          .arg(ColorOf(FamilyOf(type.name)).name(), type.name, theme::kFaintText.name(), type.doc.toHtmlEscaped()));
  const QVector<FieldInfo> fields = FieldsOf(item_);
  QStringList wanted{type.name, QString::number(item_)};
  for (const FieldInfo& field : fields) wanted += field.name;
  if (wanted != built_) BuildFields(fields);
  built_ = wanted;
  ShowValues();
}

// The sender of what led here may be one of the editors that go.
void ItemInspector::BuildFields(const QVector<FieldInfo>& fields) {
  for (FieldEditor* editor : qAsConst(editors_)) editor->disconnect(this);  // what it still says is of another item
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
    scroll_->ensureWidgetVisible(Editor(field.name));
    return Editor(field.name)->Listener()->Listen();
  }
}

void ItemInspector::Commit() {
  const auto editors = editors_.values();
  for (FieldEditor* editor : editors) {
    if (editors_.key(editor).isEmpty()) return;  // the first one has built all anew
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
