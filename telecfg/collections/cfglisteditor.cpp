// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cfglisteditor.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/elementkind_p.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/network/networkchooser.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const BoundKind boundKind = BoundKind::of<CfgListEditor>("telecfg/collections/cfglisteditor.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

// What Add asks for, by the bound record's element type.
struct ElementInput
{
    enum Kind { None, Number, Name, Text, Network };
    Kind kind = None;
    quint32 minimum = 1; // a number: 0 marks a free place
    quint32 maximum = 0;
    QStringList names;
    int maxLength = -1; // a text: negative for no limit
    bool bytes = false; // a text stored as its UTF-8 bytes, whose length counts bytes
};

template <class Named> QStringList namesOf(const QVariant &valueNames)
{
    QStringList names;
    const auto list = qvariant_cast<QList<Named>>(valueNames);
    for (const Named &named : list)
        names.append(named.name);
    return names;
}

// The longest text an element may hold: the table's length rule where the host's table has
// one; else, for byte elements, the size free places keep (a device field is zero-filled at
// its full size); else no limit.
int elementLength(MainConfigIFace *iface, int ref, const ElementKind &kind, bool bytes)
{
    if (auto *table = dynamic_cast<ParameterTable *>(iface)) {
        const int rule = table->rules(ref).maxLength;
        if (rule >= 0)
            return rule;
    }
    if (!bytes)
        return -1;
    const QVariant vector = iface->value(ref);
    int longest = -1;
    for (int place = 0; place < kind.placeCount(vector); ++place)
        if (kind.isFree(vector, place))
            longest = qMax(longest, kind.elementAt(vector, place).toByteArray().size());
    return longest > 0 ? longest : -1;
}

ElementInput inputFor(MainConfigIFace *iface, int ref)
{
    using E = ParameterTraits::Element;
    const MainConfigObject &record = iface->object(ref);
    const E element = ParameterTraits::of(record.type).element;
    const ElementKind *kind = elementKind(record.type);
    ElementInput input;
    if (!kind)
        return input;
    if (element == E::UShort || element == E::UInt) {
        // The add path asks the host for a name's number only while the record has names.
        input.names = element == E::UShort ? namesOf<NamedUShort>(record.valueNames)
                                           : namesOf<NamedUInt>(record.valueNames);
        if (!input.names.isEmpty()) {
            input.kind = ElementInput::Name;
            return input;
        }
        const qint64 largest = element == E::UShort ? 0xFFFF : 0xFFFFFFFF;
        const auto bound = [largest](const QVariant &limit, qint64 unset, qint64 low) {
            return quint32(qBound(low, limit.isValid() ? limit.toLongLong() : unset, largest));
        };
        input.kind = ElementInput::Number;
        input.minimum = bound(record.minimum, 1, 1);
        input.maximum = bound(record.maximum, largest, input.minimum);
    } else if (element == E::Network) {
        input.kind = ElementInput::Network;
    } else {
        input.kind = ElementInput::Text;
        input.bytes = element == E::Bytes;
        input.maxLength = elementLength(iface, ref, *kind, input.bytes);
    }
    return input;
}

bool textFits(const ElementInput &input, const QString &text)
{
    const int length = input.bytes ? int(text.toUtf8().size()) : int(text.size());
    return !text.isEmpty() && (input.maxLength < 0 || length <= input.maxLength);
}
} // namespace

struct CfgListEditor::Private
{
    explicit Private(CfgListEditor *editor) : bound(editor, boundKind) {}

    // Holds the enable gate of the editor as a whole; the binding itself is the list's.
    BoundControl bound;
    CfgListWidget *list = nullptr;
    QPushButton *add = nullptr;
    QPushButton *remove = nullptr;
    MainConfigIFace *iface = nullptr;
    int reference = 0;
    bool buttonsPending = false;
};

CfgListEditor::CfgListEditor(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(this))
{
    // The inner widgets carry no cfg_ names, so a form binder sees the editor alone.
    d->list = new CfgListWidget(this);
    d->list->setObjectName(QStringLiteral("list"));
    d->add = new QPushButton(tr("Dodaj…"), this);
    d->add->setObjectName(QStringLiteral("addButton"));
    d->add->setAccessibleName(tr("Dodaj element"));
    d->remove = new QPushButton(tr("Usuń"), this);
    d->remove->setObjectName(QStringLiteral("removeButton"));
    d->remove->setAccessibleName(tr("Usuń zaznaczone elementy"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(d->add);
    buttons->addWidget(d->remove);
    buttons->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->list, 1);
    layout->addLayout(buttons);
    setFocusProxy(d->list);

    connect(d->add, &QPushButton::clicked, this, &CfgListEditor::addElement);
    connect(d->remove, &QPushButton::clicked, this, &CfgListEditor::removeSelected);
    connect(d->list, &QListWidget::itemSelectionChanged, this, &CfgListEditor::updateButtons);
    // A host may add or remove through the list itself; the buttons follow once per pass.
    QAbstractItemModel *model = d->list->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &CfgListEditor::scheduleButtons);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &CfgListEditor::scheduleButtons);
    connect(model, &QAbstractItemModel::modelReset, this, &CfgListEditor::scheduleButtons);
    connect(model, &QAbstractItemModel::dataChanged, this, &CfgListEditor::scheduleButtons);
    d->list->installEventFilter(this);
    updateButtons();
}

CfgListEditor::~CfgListEditor()
{
    // The list goes with the QWidget base, after this part of the object is gone: from here on
    // neither the list nor its model may call back into it.
    d->list->removeEventFilter(this);
    disconnect(d->list, nullptr, this, nullptr);
    disconnect(d->list->model(), nullptr, this, nullptr);
}

CfgListWidget *CfgListEditor::list() const
{
    return d->list;
}

QPushButton *CfgListEditor::addButton() const
{
    return d->add;
}

QPushButton *CfgListEditor::removeButton() const
{
    return d->remove;
}

void CfgListEditor::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                 QList<QWidget *> relatedWidgets)
{
    d->iface = iface;
    d->reference = iface ? ref : 0;
    // The list hides and shows the whole editor with the parameter.
    relatedWidgets.append(this);
    d->list->setReference(iface, ref, label, relatedWidgets);
    if (iface)
        iface->object(ref).control = this; // the widget the host placed
    updateButtons();
}

void CfgListEditor::updateControl(int hardwareId)
{
    d->list->updateControl(hardwareId);
    updateButtons();
}

void CfgListEditor::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgListEditor::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgListEditor::setError(bool error)
{
    d->list->setError(error);
}

bool CfgListEditor::isError()
{
    return d->list->isError();
}

void CfgListEditor::setHidden(bool hidden)
{
    QWidget::setHidden(hidden);
    d->list->setHidden(hidden);
}

void CfgListEditor::addElement()
{
    if (!d->iface || !d->add->isEnabled())
        return;
    const QPointer<CfgListEditor> alive(this);
    const QVariant element = askElement();
    if (!alive || !element.isValid())
        return;
    d->list->addValue(element, d->reference);
    if (alive)
        updateButtons();
}

void CfgListEditor::removeSelected()
{
    if (!d->iface)
        return;
    d->list->remove(d->reference);
    updateButtons();
}

bool CfgListEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->list && event->type() == QEvent::EnabledChange)
        updateButtons();
    return QWidget::eventFilter(watched, event);
}

void CfgListEditor::updateButtons()
{
    d->buttonsPending = false;
    // The list's own state within the editor: the editor's state reaches the buttons anyway.
    const bool listEnabled = d->list->isEnabledTo(this);
    bool full = true;
    if (d->iface) {
        const MainConfigObject &record = d->iface->object(d->reference);
        if (const ElementKind *kind = elementKind(record.type))
            full = kind->firstFree(d->iface->value(d->reference), quint32(record.capacity)) < 0;
    }
    d->add->setEnabled(listEnabled && !full);
    d->add->setToolTip(d->iface && full ? tr("Lista jest pełna") : QString());
    const bool selected = !d->list->selectedItems().isEmpty();
    d->remove->setEnabled(listEnabled && selected);
    d->remove->setToolTip(selected ? QString() : tr("Nic nie zaznaczono"));
}

void CfgListEditor::scheduleButtons()
{
    if (d->buttonsPending)
        return;
    d->buttonsPending = true;
    QMetaObject::invokeMethod(this, &CfgListEditor::updateButtons, Qt::QueuedConnection);
}

QVariant CfgListEditor::askElement()
{
    const ElementInput input = inputFor(d->iface, d->reference);
    if (input.kind == ElementInput::None)
        return QVariant();
    if (input.kind == ElementInput::Network) {
        const std::optional<quint32> network = chooseMobileNetwork(this);
        return network && *network != 0 ? QVariant(uint(*network)) : QVariant();
    }
    // On the heap: a host that deletes the editor while the dialog is open takes it along.
    const QPointer<QInputDialog> dialog = new QInputDialog(this);
    dialog->setWindowTitle(tr("Nowy element"));
    // Beyond the int range a spin box of whole decimals holds every 32-bit number.
    const bool wide = input.maximum > quint32(std::numeric_limits<int>::max());
    switch (input.kind) {
    case ElementInput::Number:
        dialog->setLabelText(tr("Wartość (%1–%2):").arg(input.minimum).arg(input.maximum));
        dialog->setInputMode(wide ? QInputDialog::DoubleInput : QInputDialog::IntInput);
        if (wide) {
            dialog->setDoubleDecimals(0);
            dialog->setDoubleRange(input.minimum, input.maximum);
            dialog->setDoubleValue(input.minimum);
        } else {
            dialog->setIntRange(int(input.minimum), int(input.maximum));
            dialog->setIntValue(int(input.minimum));
        }
        break;
    case ElementInput::Name:
        dialog->setLabelText(tr("Nazwa:"));
        dialog->setComboBoxItems(input.names);
        dialog->setComboBoxEditable(false);
        break;
    default: {
        dialog->setLabelText(
            input.maxLength < 0 ? tr("Tekst:") : tr("Tekst (długość do %1):").arg(input.maxLength));
        dialog->setInputMode(QInputDialog::TextInput);
        if (auto *edit = dialog->findChild<QLineEdit *>())
            edit->setMaxLength(input.maxLength < 0 ? 32767 : input.maxLength);
        // OK only for a text that fits: not empty, and (bytes counted) not too long. The
        // dialog makes its buttons lazily; asking for the OK text makes them.
        dialog->setOkButtonText(dialog->okButtonText());
        if (auto *box = dialog->findChild<QDialogButtonBox *>()) {
            QPushButton *ok = box->button(QDialogButtonBox::Ok);
            ok->setEnabled(textFits(input, dialog->textValue()));
            connect(dialog, &QInputDialog::textValueChanged, ok,
                    [ok, input](const QString &text) { ok->setEnabled(textFits(input, text)); });
        }
        break;
    }
    }
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return QVariant();
    QVariant element;
    if (accepted && input.kind == ElementInput::Number)
        element = wide ? uint(qRound64(dialog->doubleValue())) : uint(dialog->intValue());
    else if (accepted)
        element = dialog->textValue();
    delete dialog.data();
    return element;
}
