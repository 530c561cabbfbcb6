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

namespace {
// What the protocol does not reach: the user edit, its signal and the kind's own operations.
using Operation = void (*)(QWidget *control, int ref, const QVariant &value);
struct Kind
{
    const char *name;
    QWidget *(*create)();
    const char *editSignal;
    QVector<Operation> own; // the user edit first
};
template <class T> T *as(QWidget *control)
{
    return static_cast<T *>(control);
}
template <class T> QWidget *make()
{
    return new T;
}

const Kind kinds[] = {
    {"checkbox",
     make<CfgCheckBox>,
     SIGNAL(stateChanged(int)),
     {[](QWidget *w, int, const QVariant &) { as<CfgCheckBox>(w)->click(); }}},
    {"combobox",
     make<CfgComboBox>,
     SIGNAL(currentIndexChanged(int)),
     {[](QWidget *w, int, const QVariant &) {
          auto *box = as<CfgComboBox>(w);
          box->setCurrentIndex(box->currentIndex() == 0 ? 1 : 0);
      },
      [](QWidget *w, int, const QVariant &v) { as<CfgComboBox>(w)->setSkip(v.toBool()); },
      [](QWidget *w, int ref, const QVariant &) { as<CfgComboBox>(w)->updateSelection(ref); }}},
    {"lineedit",
     make<CfgLineEdit>,
     SIGNAL(textChanged(QString)),
     {[](QWidget *w, int, const QVariant &) { QTest::keyClick(w, Qt::Key_1); },
      [](QWidget *w, int, const QVariant &v) { as<CfgLineEdit>(w)->displayText(v.toString()); },
      [](QWidget *w, int, const QVariant &v) { as<CfgLineEdit>(w)->setText(v.toString()); }}},
    {"spinbox",
     make<CfgSpinBox>,
     SIGNAL(valueChanged(int)),
     {[](QWidget *w, int, const QVariant &) { QTest::keyClick(w, Qt::Key_Up); }}},
    {"doublespinbox",
     make<CfgDoubleSpinBox>,
     SIGNAL(valueChanged(double)),
     {[](QWidget *w, int, const QVariant &) { QTest::keyClick(w, Qt::Key_Up); }}},
    {"radiobutton",
     make<CfgRadioButton>,
     SIGNAL(pressed()),
     {[](QWidget *w, int, const QVariant &) { as<CfgRadioButton>(w)->click(); },
      [](QWidget *w, int, const QVariant &v) { as<CfgRadioButton>(w)->setSelected(v.toInt()); }}},
    {"list",
     make<CfgListWidget>,
     SIGNAL(currentRowChanged(int)),
     {[](QWidget *w, int ref, const QVariant &) {
          auto *list = as<CfgListWidget>(w);
          list->addValue(QVariant(uint(list->count() + 1)), ref);
      },
      [](QWidget *w, int ref, const QVariant &v) { as<CfgListWidget>(w)->addValue(v, ref); },
      [](QWidget *w, int ref, const QVariant &) { as<CfgListWidget>(w)->remove(ref); },
      [](QWidget *w, int ref, const QVariant &) { as<CfgListWidget>(w)->removeAll(ref); },
      [](QWidget *w, int, const QVariant &v) { as<CfgListWidget>(w)->inputMode(v.toInt() % 3); }}},
    {"table",
     make<CfgTableWidget>,
     SIGNAL(cellChanged(int, int)),
     {[](QWidget *w, int ref, const QVariant &) {
          auto *table = as<CfgTableWidget>(w);
          const QString id = QString::number(table->rowCount() + 1);
          table->addValue(QVariant(QStringList{id, id}), ref);
      },
      [](QWidget *w, int ref, const QVariant &v) { as<CfgTableWidget>(w)->addValue(v, ref); },
      [](QWidget *w, int ref, const QVariant &) { as<CfgTableWidget>(w)->remove(ref); }}},
    // The editor has no signal of its own: its list's signals are the list's.
    {"listeditor",
     make<CfgListEditor>,
     nullptr,
     {[](QWidget *w, int ref, const QVariant &) {
          CfgListWidget *list = as<CfgListEditor>(w)->list();
          list->addValue(QVariant(uint(list->count() + 1)), ref);
      },
      [](QWidget *w, int ref, const QVariant &v) {
          as<CfgListEditor>(w)->list()->addValue(v, ref);
      },
      [](QWidget *w, int, const QVariant &) { as<CfgListEditor>(w)->addElement(); },
      [](QWidget *w, int, const QVariant &) { as<CfgListEditor>(w)->removeSelected(); }}},
};

const Kind &kindNamed(const QString &name)
{
    for (const Kind &kind : kinds)
        if (name == QLatin1String(kind.name))
            return kind;
    qFatal("unknown control kind %s", qPrintable(name));
}
} // namespace

QStringList anyControlKinds()
{
    QStringList names;
    for (const Kind &kind : kinds)
        names << QLatin1String(kind.name);
    return names;
}

AnyControl::AnyControl(const QString &kindName, QWidget *parent)
    : name(kindName), widget(kindNamed(kindName).create()), kind(BoundKind::find(widget))
{
    if (parent)
        widget->setParent(parent);
    else
        owner.reset(widget.data(), [](QWidget *control) { delete control; });
}

void AnyControl::userEdit()
{
    operate(0, bound, QVariant());
}

const char *AnyControl::editSignal() const
{
    return kindNamed(name).editSignal;
}

int AnyControl::operationCount() const
{
    return kindNamed(name).own.size();
}

void AnyControl::operate(int index, int ref, const QVariant &value)
{
    kindNamed(name).own.at(index)(widget, ref, value);
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
