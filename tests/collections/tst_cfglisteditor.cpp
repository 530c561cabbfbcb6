// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cfglisteditor.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertable.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {
const int ref = 40;

template <class Element> QVariant vec(std::initializer_list<Element> elements)
{
    return QVariant::fromValue(QVector<Element>(elements));
}

// What the input dialog offers: "int 1-65535", "double 1-4294967295", "names a|b", "text 8"
// (the line edit's length; "-" for none), "network" for the country and operator dialog.
QString offered(QWidget *modal)
{
    auto *dialog = qobject_cast<QInputDialog *>(modal);
    if (!dialog)
        return modal->findChild<QLineEdit *>(QStringLiteral("leCountry")) ? "network" : "?";
    switch (dialog->inputMode()) {
    case QInputDialog::IntInput:
        return QStringLiteral("int %1-%2").arg(dialog->intMinimum()).arg(dialog->intMaximum());
    case QInputDialog::DoubleInput:
        return QStringLiteral("double %1-%2")
            .arg(dialog->doubleMinimum(), 0, 'f', 0)
            .arg(dialog->doubleMaximum(), 0, 'f', 0);
    case QInputDialog::TextInput:
        break;
    }

    if (!dialog->comboBoxItems().isEmpty())
        return "names " + dialog->comboBoxItems().join('|');
    const int length = dialog->findChild<QLineEdit *>()->maxLength();
    return "text " + (length == 32767 ? QStringLiteral("-") : QString::number(length));
}

// Plays the user: gives `answer` to the input (a network as "country/operator") and presses
// OK where it is enabled; a null answer, or a disabled OK, cancels.
void answer(QWidget *modal, const QString &answer)
{
    auto *dialog = qobject_cast<QDialog *>(modal);
    QPushButton *ok = nullptr;
    if (auto *input = qobject_cast<QInputDialog *>(modal)) {
        if (input->inputMode() == QInputDialog::IntInput)
            input->setIntValue(answer.toInt());
        else if (input->inputMode() == QInputDialog::DoubleInput)
            input->setDoubleValue(answer.toDouble());
        else
            input->setTextValue(answer);
        ok = input->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    } else {
        const QStringList codes = answer.split('/');
        modal->findChild<QLineEdit *>(QStringLiteral("leCountry"))->setText(codes.value(0));
        modal->findChild<QLineEdit *>(QStringLiteral("leOperator"))->setText(codes.value(1));
        ok = modal->findChild<QPushButton *>(QStringLiteral("pbOK"));
    }

    if (answer.isNull() || !ok->isEnabled())
        dialog->reject();
    else
        ok->click();
}
} // namespace

class TestCfgListEditor : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        allowListConnectionWarning();
        registerCollectionTypes();
    }

    void addAsksByElementType_data()
    {
        // bounds: the record's minimum and maximum
        // maxLength: the table's rule
        // answer: null cancels
        columns<int, QVariant, QVariant, QVariantList, int, QString, QString, QVariant>(
            "type", "value", "names", "bounds", "maxLength", "offered", "answer", "after");

        const QVariant none;
        const QVariantList no{QVariant(), QVariant()};
        const QVariant u16 = vec<quint16>({0, 0});
        const QVariant u32 = vec<quint32>({0, 0});
        const QVariant field = vec<QByteArray>({QByteArray(8, '\0'), "X"});
        const QVariant texts = vec<QString>({"", ""});
        const QVariant named = QVariant::fromValue(QList<NamedUInt>{{7, "Jan"}, {9, "Anna"}});
        row("8: number", 8, u16, none, no, -1, "int 1-65535", "300", vec<quint16>({300, 0}));
        row("8: the record's bounds", 8, u16, none, QVariantList{10, 70000}, -1, "int 10-65535",
            "12", vec<quint16>({12, 0}));
        row("24: every 32-bit number", 24, u32, none, no, -1, "double 1-4294967295", "4000000000",
            vec<quint32>({4000000000u, 0}));
        row("24: by name", 24, u32, named, no, -1, "names Jan|Anna", "Anna", vec<quint32>({9, 0}));
        row("24: cancelled", 24, u32, none, no, -1, "double 1-4294967295", QString(), u32);
        row("20: field size of a free place", 20, field, none, no, -1, "text 8", "AB",
            vec<QByteArray>({"AB", "X"}));
        // Eight characters, but sixteen bytes: more than the field holds.
        row("20: too long in bytes", 20, field, none, no, -1, "text 8", "ąąąąąąąą", field);
        row("13: the table's length", 13, texts, none, no, 5, "text 5", "abc",
            vec<QString>({"abc", ""}));
        row("13: empty refused", 13, texts, none, no, -1, "text -", "", texts);
        row("29: network", 29, u32, none, no, -1, "network", "260/3", vec<quint32>({266243, 0}));
        // Network 0 marks a free place.
        row("29: network 0", 29, u32, none, no, -1, "network", "0/0", u32);
    }

    void addAsksByElementType()
    {
        QFETCH(int, type);
        QFETCH(QVariant, value);
        QFETCH(QVariant, names);
        QFETCH(QVariantList, bounds);
        QFETCH(int, maxLength);
        QFETCH(QString, offered);
        QFETCH(QString, answer);
        QFETCH(QVariant, after);

        ParameterTable table;
        MainConfigObject record;
        record.type = type;
        record.value = value;
        record.capacity = 2;
        record.valueNames = names;
        record.minimum = bounds.at(0);
        record.maximum = bounds.at(1);
        table.addRecord(ref, record);
        ParameterTable::Rules rules;
        rules.maxLength = maxLength;
        table.setRules(ref, rules);
        MainConfigIFace *iface = &table;
        CfgListEditor editor;
        editor.setReference(iface, ref, nullptr, {});
        editor.updateControl(0);
        const int before = editor.list()->count();

        QString seen;
        ModalCatcher catcher([&](QWidget *modal) {
            seen = ::offered(modal);
            ::answer(modal, answer);
        });
        QTest::mouseClick(editor.addButton(), Qt::LeftButton);
        QCOMPARE(seen, offered);
        QCOMPARE(iface->value(ref), after);
        QCOMPARE(editor.list()->count(), before + (after != value ? 1 : 0));
    }

    void buttons_data()
    {
        QTest::addColumn<QVariant>("value");
        // "select", "disable", "gate", "list off" (the host disables the list), "unbind"
        columns<QString, bool, bool, QString>("op", "add", "remove", "addTip");

        const QVariant room = vec<quint32>({5, 0});
        const QVariant full = vec<quint32>({5, 6});
        row("room, nothing selected", room, "", true, false, "");
        row("full", full, "", false, false, "Lista jest pełna");
        row("selected", full, "select", false, true, "Lista jest pełna");
        row("disabled", room, "select disable", false, false, "");
        row("gate closed", room, "select gate", false, false, "");
        row("list disabled", room, "select list off", false, false, "");
        row("unbound", room, "unbind", false, false, "");
    }

    void buttons()
    {
        auto [value, op, add, remove, addTip] =
            fetch<QVariant, QString, bool, bool, QString>("value", "op", "add", "remove", "addTip");

        TestHost host;
        host.add(ref, 24, value).capacity = 2;
        CfgListEditor editor;
        editor.setReference(&host, ref, nullptr, {});
        if (op.contains("select"))
            editor.list()->item(0)->setSelected(true);
        if (op.contains("disable"))
            editor.setEnabled(false);
        if (op.contains("gate"))
            editor.updateEnableState(false);
        if (op.contains("list off"))
            editor.list()->setEnabled(false);
        if (op.contains("unbind"))
            editor.setReference(nullptr, ref, nullptr, {});
        QCOMPARE(editor.addButton()->isEnabled(), add);
        QCOMPARE(editor.removeButton()->isEnabled(), remove);
        QCOMPARE(editor.addButton()->toolTip(), addTip);
    }

    void buttonsFollowTheList()
    {
        TestHost host;
        host.add(ref, 24, vec<quint32>({5, 6})).capacity = 2;
        CfgListEditor editor;
        editor.setReference(&host, ref, nullptr, {});
        QVERIFY(!editor.addButton()->isEnabled());
        editor.list()->item(0)->setSelected(true);
        QTest::mouseClick(editor.removeButton(), Qt::LeftButton);
        QCOMPARE(host.value(ref), vec<quint32>({0, 6}));
        QVERIFY(editor.addButton()->isEnabled());
        // The host's own calls on the list, with no change of selection: the buttons follow once
        // events are processed.
        editor.list()->addValue(7u, ref);
        editor.list()->clearSelection();
        QTRY_VERIFY(!editor.addButton()->isEnabled());
        editor.list()->removeAll(ref);
        QCOMPARE(host.value(ref), vec<quint32>({0, 0}));
        QTRY_VERIFY(editor.addButton()->isEnabled());
    }
};

QTEST_MAIN(TestCfgListEditor)
#include "tst_cfglisteditor.moc"
