// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/config/parametervalues_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/parameterdelegate_p.h"
#include "telecfg/form/parametermodel.h"
#include "telecfg/form/valuetext_p.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

namespace {
const char originalProperty[] = "telecfg_original_value";
const char parameterProperty[] = "telecfg_parameter";

const BoundKind *boundKind(const QString &kind)
{
    const QString className = QStringLiteral("cfg") + kind;
    const QList<const BoundKind *> kinds = BoundKind::all();
    for (const BoundKind *bound : kinds)
        if (QLatin1String(bound->metaObject->className()).compare(className, Qt::CaseInsensitive) ==
            0)
            return bound;
    return nullptr;
}

// What binding writes into the record (the control, its label), put back when the browser's
// editor goes: the page's control stays the record's.
struct Registration
{
    QPointer<QWidget> control;
    QPointer<QWidget> label;
};

Registration registration(MainConfigIFace &table, int ref)
{
    const MainConfigObject &record = table.object(ref);
    return {record.control, record.label};
}

void restore(MainConfigIFace &table, int ref, const Registration &saved)
{
    MainConfigObject &record = table.object(ref);
    record.control = saved.control;
    record.label = saved.label;
}

QList<int> groupOf(ParameterTable *table, int ref)
{
    const int group = table ? table->group(ref) : 0;
    if (group == 0)
        return {ref};
    QList<int> members;
    const QList<int> refs = table->parameters();
    for (int member : refs)
        if (table->group(member) == group)
            members.append(member);
    return members;
}
} // namespace

ParameterDelegate::ParameterDelegate(ParameterModel *model, QObject *parent)
    : StateCueDelegate(parent), model(model)
{
}

QString ParameterDelegate::kindOf(ParameterModel *model, int ref)
{
    if (ParameterTable *ready = model->state()->parameterTable()) {
        QString kind = ready->presentation(ref).control;
        if (!kind.isEmpty())
            return kind;
    }
    const MainConfigObject &record = model->state()->table()->object(ref);
    if (parametervalues::isCollection(record))
        return record.columnTitles.isEmpty() ? QStringLiteral("listwidget")
                                             : QStringLiteral("tablewidget");
    if (ParameterTraits::of(record.type).choice)
        return QStringLiteral("radiobutton");
    if (!record.options.isEmpty())
        return QStringLiteral("combobox");
    return QStringLiteral("lineedit");
}

QWidget *ParameterDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    if (index.column() != ParameterModel::ValueColumn)
        return nullptr;
    const int ref = index.data(ParameterModel::ParameterRole).toInt();
    MainConfigIFace &table = *model->state()->table();
    ParameterTable *ready = model->state()->parameterTable();
    QString kind = kindOf(model, ref);
    if (kind == QLatin1String("list") || kind == QLatin1String("table") ||
        kind.endsWith(QLatin1String("widget"))) {
        QPointer<QWidget> owner = parent;
        QTimer::singleShot(0, this, [this, owner, ref, kind] {
            if (owner)
                editCollection(owner, ref, kind);
        });
        return nullptr;
    }
    QWidget *editor = nullptr;
    if (kind == QLatin1String("radiobutton")) {
        // The group's choices as a list: each member's text, written as its value.
        auto *choices = new QComboBox(parent);
        const QList<int> members = groupOf(ready, ref);
        for (int member : members) {
            const QString text = ready ? ready->presentation(member).text : QString();
            choices->addItem(text.isEmpty() ? valuetext::name(table, member) : text,
                             table.object(member).minimum);
        }
        const int current = choices->findData(table.value(ref).toUInt());
        choices->setCurrentIndex(current);
        editor = choices;
    } else if (const BoundKind *bound = boundKind(kind)) {
        editor = bound->create(parent);
        // Also a parameter hidden for the device is edited here: the editor must not hide
        // itself, which would end the edit after its first write.
        editor->setProperty(itemEditorProperty, true);
        if (ready) {
            const ParameterTable::Presentation presentation = ready->presentation(ref);
            if (auto *button = qobject_cast<QAbstractButton *>(editor))
                button->setText(presentation.text);
            if (auto *box = qobject_cast<QDoubleSpinBox *>(editor))
                box->setDecimals(presentation.decimals);
        }
        const Registration saved = registration(table, ref);
        bound->setReference(editor, &table, ref, nullptr, {});
        restore(table, ref, saved);
        bound->updateControl(editor, model->hardwareId());
    } else {
        return StateCueDelegate::createEditor(parent, option, index);
    }
    editor->setProperty(originalProperty, table.value(ref));
    editor->setProperty(parameterProperty, ref);
    editor->setAccessibleName(valuetext::name(table, ref));
    editor->setAutoFillBackground(true);
    return editor;
}

void ParameterDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // A bound control loads its value itself; only the plain editors are loaded here.
    if (!editor->property(parameterProperty).isValid())
        StateCueDelegate::setEditorData(editor, index);
}

void ParameterDelegate::setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                                     const QModelIndex &index) const
{
    if (!editor->property(parameterProperty).isValid()) {
        StateCueDelegate::setModelData(editor, itemModel, index);
        return;
    }
    // A bound control has written each edit already; the choices of a radio group write here.
    if (auto *choices = qobject_cast<QComboBox *>(editor); choices && !BoundKind::find(editor))
        if (choices->currentIndex() >= 0)
            itemModel->setData(index, choices->currentData());
}

bool ParameterDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QWidget *>(object);
    if (editor && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape &&
        editor->property(parameterProperty).isValid()) {
        // Escape takes back what the editor wrote while it was open.
        const int ref = editor->property(parameterProperty).toInt();
        const QVariant original = editor->property(originalProperty);
        MainConfigIFace &table = *model->state()->table();
        if (!ParameterTable::sameValue(table.value(ref), original))
            table.setValue(ref, original);
        emit closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
        return true;
    }
    return StateCueDelegate::eventFilter(object, event);
}

void ParameterDelegate::editCollection(QWidget *parent, int ref, const QString &kind) const
{
    MainConfigIFace &table = *model->state()->table();
    const bool isTable = kind.startsWith(QLatin1String("table"));
    const BoundKind *bound =
        boundKind(isTable ? QStringLiteral("tablewidget") : QStringLiteral("listwidget"));
    if (!bound)
        return;
    QDialog dialog(parent->window());
    dialog.setWindowTitle(valuetext::name(table, ref));
    auto *layout = new QVBoxLayout(&dialog);
    QWidget *editor = bound->create(&dialog);
    editor->setAccessibleName(valuetext::name(table, ref));
    layout->addWidget(editor);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    const QVariant original = table.value(ref);
    const Registration saved = registration(table, ref);
    bound->setReference(editor, &table, ref, nullptr, {});
    bound->updateControl(editor, model->hardwareId());
    const bool kept = dialog.exec() == QDialog::Accepted;
    restore(table, ref, saved);
    if (!kept && !ParameterTable::sameValue(table.value(ref), original))
        table.setValue(ref, original);
}
