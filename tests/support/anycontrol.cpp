// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tests/support/anycontrol.h"

#include "telecfg/collections/cfglisteditor.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QTest>

QStringList anyControlKinds()
{
    return valueControlKinds() + QStringList{QStringLiteral("list"), QStringLiteral("table"),
                                             QStringLiteral("listeditor")};
}

QStringList valueControlKinds()
{
    return {QStringLiteral("checkbox"),      QStringLiteral("combobox"),
            QStringLiteral("lineedit"),      QStringLiteral("spinbox"),
            QStringLiteral("doublespinbox"), QStringLiteral("radiobutton")};
}

AnyControl makeAnyControl(std::unique_ptr<QWidget> control)
{
    const BoundKind *kind = BoundKind::find(control.get());
    if (!kind)
        qFatal("%s is no bound control", control->metaObject()->className());
    QWidget *widget = control.get();
    AnyControl any;
    any.widget = std::move(control);
    any.setReference = [widget, kind](MainConfigIFace *iface, int ref, QWidget *label,
                                      QList<QWidget *> related) {
        kind->setReference(widget, iface, ref, label, related);
    };
    any.updateControl = [widget, kind](int id) { kind->updateControl(widget, id); };
    any.setEnabled = [widget, kind](bool on) { kind->setEnabled(widget, on); };
    any.updateEnableState = [widget, kind](bool on) { kind->updateEnableState(widget, on); };
    any.setHidden = [widget, kind](bool hidden) { kind->setHidden(widget, hidden); };
    any.setError = [widget, kind](bool error) { kind->setError(widget, error); };
    any.isError = [widget, kind]() { return kind->isError(widget); };
    return any;
}

namespace {
template <class Control>
AnyControl makeEditable(const char *signal, std::function<void(Control *)> edit)
{
    auto *control = new Control;
    AnyControl any = makeAnyControl(std::unique_ptr<QWidget>(control));
    any.userEdit = [control, edit] { edit(control); };
    any.editSignal = signal;
    return any;
}

// The collection editors add an element to the parameter they are bound to, which they do
// not tell: the adapter remembers it from the binding.
template <class Control>
AnyControl makeCollection(const char *signal, std::function<void(Control *, int)> add)
{
    AnyControl any = makeEditable<Control>(signal, {});
    auto *control = static_cast<Control *>(any.widget.get());
    auto ref = std::make_shared<int>(0);
    any.setReference = [bind = any.setReference, ref](MainConfigIFace *iface, int bound,
                                                      QWidget *label, QList<QWidget *> related) {
        *ref = bound;
        bind(iface, bound, label, related);
    };
    any.userEdit = [control, ref, add] { add(control, *ref); };
    return any;
}
} // namespace

AnyControl makeAnyControl(const QString &kind)
{
    if (kind == QLatin1String("checkbox"))
        return makeEditable<CfgCheckBox>(SIGNAL(stateChanged(int)),
                                         [](CfgCheckBox *box) { box->click(); });
    if (kind == QLatin1String("combobox"))
        return makeEditable<CfgComboBox>(SIGNAL(currentIndexChanged(int)), [](CfgComboBox *box) {
            box->setCurrentIndex(box->currentIndex() == 0 ? 1 : 0);
        });
    if (kind == QLatin1String("lineedit"))
        return makeEditable<CfgLineEdit>(SIGNAL(textChanged(QString)), [](CfgLineEdit *edit) {
            QTest::keyClick(edit, Qt::Key_1);
        });
    if (kind == QLatin1String("spinbox"))
        return makeEditable<CfgSpinBox>(SIGNAL(valueChanged(int)),
                                        [](CfgSpinBox *box) { QTest::keyClick(box, Qt::Key_Up); });
    if (kind == QLatin1String("doublespinbox"))
        return makeEditable<CfgDoubleSpinBox>(
            SIGNAL(valueChanged(double)),
            [](CfgDoubleSpinBox *box) { QTest::keyClick(box, Qt::Key_Up); });
    if (kind == QLatin1String("radiobutton"))
        return makeEditable<CfgRadioButton>(SIGNAL(pressed()),
                                            [](CfgRadioButton *button) { button->click(); });
    if (kind == QLatin1String("list"))
        return makeCollection<CfgListWidget>(
            SIGNAL(currentRowChanged(int)), [](CfgListWidget *list, int ref) {
                list->addValue(QVariant(uint(list->count() + 1)), ref);
            });
    if (kind == QLatin1String("table"))
        return makeCollection<CfgTableWidget>(
            SIGNAL(cellChanged(int, int)), [](CfgTableWidget *table, int ref) {
                const QString id = QString::number(table->rowCount() + 1);
                table->addValue(QVariant(QStringList{id, id}), ref);
            });
    // The editor has no signal of its own: its list's signals are the list's.
    if (kind == QLatin1String("listeditor"))
        return makeCollection<CfgListEditor>(nullptr, [](CfgListEditor *editor, int ref) {
            editor->list()->addValue(QVariant(uint(editor->list()->count() + 1)), ref);
        });
    qFatal("unknown control kind %s", qPrintable(kind));
    return {};
}

MainConfigObject &addEditableRecord(TestHost &host, const QString &kind, int ref)
{
    registerCollectionTypes();
    MainConfigObject &object = host.add(ref, 1, 0u);
    object.minimum = 0u;
    object.maximum = 100u;
    object.step = 1;
    object.capacity = 4;
    if (kind == QLatin1String("combobox")) {
        object.options = {{0, {QStringLiteral("a"), QStringLiteral("1")}},
                          {1, {QStringLiteral("b"), QStringLiteral("2")}}};
        object.value = QStringLiteral("1");
    } else if (kind == QLatin1String("lineedit")) {
        object.value = QString();
    } else if (kind == QLatin1String("doublespinbox")) {
        object.type = 3;
        object.minimum = QStringLiteral("0");
        object.maximum = QStringLiteral("100");
        object.value = QStringLiteral("5");
    } else if (kind == QLatin1String("radiobutton")) {
        object.type = 4;
        object.minimum = 3u;
    } else if (kind == QLatin1String("list") || kind == QLatin1String("listeditor")) {
        object.type = 24;
        object.value = QVariant::fromValue(QVector<quint32>(4));
    } else if (kind == QLatin1String("table")) {
        object.type = 0;
        object.columnListA = QVariant::fromValue(QList<uint>{0, 1});
        object.columnListB = object.columnListA;
        object.value = QVariant::fromValue(ColumnVectors(2, QVector<QByteArray>(4)));
    }
    return object;
}

void allowListConnectionWarning()
{
    allowWarning(QStringLiteral("No such slot CfgListWidget::selectionChanged()"));
}
