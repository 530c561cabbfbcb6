// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The six single-value controls: what each shows, writes and paints. The line edit's decimal
// patterns and the decimal spin box read numbers through the system locale, which the toolkit
// takes from the environment at start-up: CTest runs this suite with a point locale and again
// with a comma one.
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QValidator>
#include <QtTest>
#include <functional>
#include <utility>

using Options = QMap<int, QPair<QString, QString>>;
Q_DECLARE_METATYPE(Options)
using HostAction = std::function<void(CfgComboBox &)>;
Q_DECLARE_METATYPE(HostAction)

namespace {
const QString spinRed = QStringLiteral("QSpinBox{background: red;}");
const QString spinYellow = QStringLiteral("QSpinBox{background: yellow;}");
const QString spinWhite = QStringLiteral("QSpinBox{background: white;}");

QString radioSheet(const char *checkedImage, int blanks)
{
    const QString gap(blanks, QLatin1Char(' '));
    return QStringLiteral("QRadioButton::indicator:unchecked {image: "
                          "url(:/images/radiobutton_unselected.png);}") +
           gap + "QRadioButton::indicator:checked {image: url(:/images/" + checkedImage +
           ".png);}" + gap +
           "QRadioButton::indicator:unchecked:hover {image: "
           "url(:/images/radiobutton_unselected_hover.png);}" +
           gap +
           "QRadioButton::indicator:checked:hover {image: "
           "url(:/images/radiobutton_selected_hover.png);}";
}
const QString radioNormal = radioSheet("radiobutton_selected_black", 24);
const QString radioChanged = radioSheet("radiobutton_selected_yellow", 22);

const QString doubleRed = QStringLiteral("QDoubleSpinBox{background: red;}");
const QString doubleYellow = QStringLiteral("QDoubleSpinBox{background: yellow;}");
const QString doubleWhite = QStringLiteral("QDoubleSpinBox{background: white;}");

// "1#5" written with the system locale's separator, or with the other one.
QString local(QString text)
{
    return text.replace(QLatin1Char('#'), QLocale::system().decimalPoint());
}
QString foreign(QString text)
{
    const QChar other =
        QLocale::system().decimalPoint() == QLatin1Char('.') ? QLatin1Char(',') : QLatin1Char('.');
    return text.replace(QLatin1Char('#'), other);
}
QString comboSheet(const char *colour)
{
    return QStringLiteral("QComboBox{background-color: ") + QLatin1String(colour) +
           QStringLiteral("; border:1px solid; \t\t\t\t\t\t\tborder-radius:2px; padding:1px;"
                          "color: black; border-color: rgb(130,130,130); } \t\t\t\t\t\t\t"
                          "QComboBox::drop-down{border:0px solid black; padding:1px;color: "
                          "white; border-width:0px; }\t\t\t\t\t\t\tQComboBox::down-arrow "
                          "{image: url(:images/arrow.png)};");
}

Options speeds()
{
    return {{0, {"125 kbit/s", "125"}}, {1, {"250 kbit/s", "250"}}, {2, {"500 kbit/s", "500"}}};
}

const QString lineRed = QStringLiteral("QLineEdit{background: red;}");
const QString lineYellow = QStringLiteral("QLineEdit{background: yellow;}");
const QString lineWhite = QStringLiteral("QLineEdit{background: white;}");

bool pointLocale()
{
    return QLocale::system().decimalPoint() == QLatin1Char('.');
}

// The host logged exactly these values, of these types.
void compareWrites(const TestHost &host, const QVariantList &expected)
{
    QCOMPARE(host.writes.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(host.writes[i].value.userType(), expected[i].userType());
        QCOMPARE(host.writes[i].value, expected[i]);
    }
}
} // namespace

class TestValueControls : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The widgets' own locale follows the system one, as in a host.
        QLocale::setDefault(QLocale::system());
    }

    void checkBindAndEdit_data()
    {
        // shown: checked after binding
        // state: then set by the user
        columns<int, QVariant, bool, bool, int, QVariant>("type", "value", "shown",
                                                          "partialIsChecked", "state", "written");

        row("bool off", 1, QVariant(true), true, false, 0, QVariant(false));
        row("bool partial", 1, QVariant(true), true, false, 1, QVariant(false));
        row("bool partial on", 1, QVariant(false), false, true, 1, QVariant(true));
        row("7 partial on", 22, QVariant(7), true, true, 1, QVariant(1));
        row("0 on", 22, QVariant(0), false, false, 2, QVariant(1));
        row("text off", 22, QVariant("1"), true, true, 0, QVariant(0));
        row("text true", 0, QVariant("true"), true, false, 1, QVariant(false));
        row("list", 22, QVariant(QStringList{"x"}), false, false, 2, QVariant(1));
    }

    void checkBindAndEdit()
    {
        auto [type, value, shown, partialIsChecked, state, written] =
            fetch<int, QVariant, bool, bool, int, QVariant>("type", "value", "shown",
                                                            "partialIsChecked", "state", "written");

        TestHost host;
        host.add(10, type, value).partialIsChecked = partialIsChecked;
        CfgCheckBox box;
        box.setTristate(true);
        box.setReference(&host, 10, nullptr, {});
        QCOMPARE(box.checkState(), shown ? Qt::Checked : Qt::Unchecked);
        host.writes.clear();
        box.setCheckState(Qt::CheckState(state));
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value.userType(), written.userType());
        QCOMPARE(host.writes[0].value, written);
    }

    void checkStyleSheets_data()
    {
        columns<bool, bool, QString>("enabled", "modified", "sheet");

        // The four indicator images of one look ("grey", "yellow_..._disabled", ...).
        auto sheet = [](const char *colour, const char *suffix, const char *sep) {
            return QString::asprintf(
                "QCheckBox::indicator:unchecked {image: "
                "url(:/images/checkbox_%s_unchecked%s.png);}%s"
                "QCheckBox::indicator:checked {image: url(:/images/checkbox_%s_checked%s.png);}%s"
                "QCheckBox::indicator:unchecked:hover {image: "
                "url(:/images/checkbox_unchecked_hover.png);}%s"
                "QCheckBox::indicator:checked:hover {image: "
                "url(:/images/checkbox_checked_hover.png);}",
                colour, suffix, sep, colour, suffix, sep, sep);
        };
        const char *six = "\t\t\t\t\t\t  ";
        row("enabled", true, false, sheet("grey", "", six));
        row("enabled modified", true, true, sheet("yellow", "", six));
        row("disabled", false, false, sheet("grey", "_disabled", six));
        row("disabled modified", false, true, sheet("yellow", "_disabled", "\t\t\t\t\t  "));
    }

    void checkStyleSheets()
    {
        auto [enabled, modified, sheet] =
            fetch<bool, bool, QString>("enabled", "modified", "sheet");

        TestHost host;
        host.add(10, 1, true);
        if (modified)
            host.modified.insert(10);
        CfgCheckBox box;
        box.setReference(&host, 10, nullptr, {});
        box.setEnabled(enabled);
        box.updateControl(1);
        QCOMPARE(box.styleSheet(), sheet);
    }

    void bindingAndLook_data()
    {
        // record: minimum, maximum, value
        // state: what the host reports of the value
        // shown: minimum, maximum, value
        columns<int, QVariantList, int, QString, QList<int>, QString>("type", "record", "step",
                                                                      "state", "shown", "sheet");

        const QVariantList wide{-100, 100};
        row("value above maximum clamped", 1, QVariantList{0u, 300u, 500u}, 5, "",
            QList<int>{0, 300, 300}, spinWhite);
        row("signed bounds; -20 is red by its unsigned reading", 21, QVariantList{-50, 50, -20}, 5,
            "", QList<int>{-50, 50, -20}, spinRed);
        row("signed bounds held as text", 21, QVariantList{"-40", "40", "-10"}, 1, "",
            QList<int>{-40, 40, -10}, spinWhite);
        row("unsigned -1 reads huge, wraps", 1, QVariantList{0u, 0xFFFFFFFFu, 10u}, 5, "",
            QList<int>{-1, -1, -1}, spinWhite);
        // A host that stores the bounds' echoes still gets its value shown.
        row("value inside raised bounds", 1, QVariantList{200u, 300u, 250u}, 5, "",
            QList<int>{200, 300, 250}, spinWhite);
        row("modified", 1, wide + QVariantList{20}, 5, "modified", QList<int>{-100, 100, 20},
            spinYellow);
        row("no multiple, red though modified", 1, wide + QVariantList{22}, 5, "modified",
            QList<int>{-100, 100, 22}, spinRed);
        row("invalid", 1, wide + QVariantList{20}, 5, "invalid", QList<int>{-100, 100, 20},
            spinRed);
        // Negative values are divided by their unsigned reading.
        row("-4 by 3: unsigned reading divides", 21, wide + QVariantList{-4}, 3, "",
            QList<int>{-100, 100, -4}, spinWhite);
        row("-3 by 3: unsigned reading does not", 21, wide + QVariantList{-3}, 3, "",
            QList<int>{-100, 100, -3}, spinRed);
        row("step 0: no rule, no crash", 1, wide + QVariantList{7}, 0, "", QList<int>{-100, 100, 7},
            spinWhite);
    }

    void bindingAndLook()
    {
        auto [type, record, step, state, shown, sheet] =
            fetch<int, QVariantList, int, QString, QList<int>, QString>("type", "record", "step",
                                                                        "state", "shown", "sheet");

        TestHost host;
        MainConfigObject &object = host.add(10, type, record[2]);
        object.minimum = record[0];
        object.maximum = record[1];
        object.step = step;
        if (state == "invalid")
            host.invalid.insert(10);
        if (state == "modified")
            host.modified.insert(10);
        CfgSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        QCOMPARE((QList<int>{box.minimum(), box.maximum(), box.value()}), shown);
        QCOMPARE(box.singleStep(), step);
        box.setEnabled(false); // the look ignores the enabled state
        box.updateControl(1);
        QCOMPARE(box.styleSheet(), sheet);
    }

    // The user types a number that is no multiple of the step.
    void keyEditsWriteInts()
    {
        TestHost host;
        MainConfigObject &object = host.add(10, 1, 10u);
        object.minimum = 0u;
        object.maximum = 100u;
        object.step = 5;
        CfgSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        host.writes.clear();
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, "42");
        QCOMPARE(host.writes.size(), 2); // "4" and "42"
        QCOMPARE(host.writes[1].value.userType(), int(QMetaType::Int));
        QCOMPARE(host.writes[1].value, QVariant(42)); // written, yet red
        QCOMPARE(box.styleSheet(), spinRed);
    }

    void checkedState_data()
    {
        // select: setSelected(value) instead of binding to it
        // choice: the record's minimum
        columns<bool, int, QVariant, bool, bool, QVariant>("select", "type", "value",
                                                           "checkedBefore", "checked", "choice");

        row("bound, its choice", false, 4, QVariant(2u), false, true, QVariant(2u));
        row("bound, other choice", false, 4, QVariant(3u), true, false, QVariant(2u));
        row("bound, value as text", false, 4, QVariant("2"), false, true, QVariant(2u));
        row("bound, wrong type", false, 4, QVariant(QSize(2, 2)), true, false, QVariant(2u));
        row("bound, other type keeps", false, 1, QVariant(3u), true, true, QVariant(2u));
        row("selected, its choice", true, 4, QVariant(2), false, true, QVariant(2u));
        row("selected, other value", true, 4, QVariant(3), true, false, QVariant(2u));
        row("selected, other type", true, 1, QVariant(2), false, false, QVariant(2u));
        QTest::newRow("bound, choice held as bytes") // on Qt 6 as on Qt 5
            << false << 4 << QVariant(2u) << false << true << QVariant(QByteArray("2"));
        row("selected, choice held as bytes", true, 4, QVariant(2), false, true,
            QVariant(QByteArray("2")));
    }

    void checkedState()
    {
        auto [select, type, value, checkedBefore, checked, choice] =
            fetch<bool, int, QVariant, bool, bool, QVariant>("select", "type", "value",
                                                             "checkedBefore", "checked", "choice");

        TestHost host;
        host.add(10, type, select ? QVariant(0u) : value).minimum = choice;
        host.modified.insert(10);
        CfgRadioButton button;
        button.setAutoExclusive(false); // a lone exclusive button cannot be unchecked
        button.setChecked(checkedBefore);
        if (select)
            button.setSelected(value.toInt()); // unbound: no crash
        button.setReference(&host, 10, nullptr, {});
        if (select) {
            button.setChecked(checkedBefore);
            QCOMPARE(button.styleSheet(), radioNormal); // neither binding nor setChecked repaints
            button.setSelected(value.toInt());
            QCOMPARE(button.styleSheet(), radioChanged); // refreshed in every case
        }
        QCOMPARE(button.isChecked(), checked);
        QVERIFY(host.writes.isEmpty());
    }

    // Pressing an already checked button writes its choice again.
    void pressWritesChoice()
    {
        const QVariant choice(1u);
        TestHost host;
        host.add(10, 4, choice).minimum = choice;
        host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
        CfgRadioButton button;
        button.setReference(&host, 10, nullptr, {});
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));

        // The choice is written on the press, before the button is released.
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value.userType(), choice.userType());
        QCOMPARE(host.writes[0].value, choice);
        QCOMPARE(button.styleSheet(), radioChanged);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        QCOMPARE(host.writes.size(), 1);
    }

    void doubleBinding_data()
    {
        // record: minimum, maximum, value
        // shown: minimum, maximum, value
        columns<int, QVariantList, QList<double>>("type", "record", "shown");

        row("value in local notation", 3, QVariantList{local("0#5"), "100", local("0#75")},
            QList<double>{0.5, 100, 0.75});
        row("value in the other notation is adapted", 3, QVariantList{"0", "100", foreign("0#75")},
            QList<double>{0, 100, 0.75});
        row("bound in the other notation reads 0", 3, QVariantList{foreign("0#5"), "100", "20"},
            QList<double>{0, 100, 20});
    }

    void doubleBinding()
    {
        auto [type, record, shown] =
            fetch<int, QVariantList, QList<double>>("type", "record", "shown");

        TestHost host;
        MainConfigObject &object = host.add(10, type, record[2]);
        object.minimum = record[0];
        object.maximum = record[1];
        object.step = 0; // every nonzero value then passes the step rule
        CfgDoubleSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        QCOMPARE((QList<double>{box.minimum(), box.maximum(), box.value()}), shown);
        for (const TestHost::Write &write : std::as_const(host.writes))
            QCOMPARE(write.value.userType(), int(QMetaType::Double));
    }

    void doubleEdits_data()
    {
        columns<int, double, bool>("step", "edited", "written");

        row("multiple written", 2, 6.0, true);
        row("fraction refused", 1, 2.5, false);
        row("step 0, value 0: not a number, refused", 0, 0.0, false);
        row("step 0, other value: infinite, written", 0, 5.0, true);
        row("near multiple within a float passes", 3, 100000001.0, true);
        row("no multiple within a float's reach", 3, 1000001.0, false);
    }

    void doubleEdits()
    {
        auto [step, edited, written] = fetch<int, double, bool>("step", "edited", "written");

        TestHost host;
        MainConfigObject &object = host.add(10, 3, QString::number(12));
        object.minimum = QStringLiteral("0");
        object.maximum = QStringLiteral("1000000000");
        object.step = step;
        host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
        CfgDoubleSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        host.writes.clear();
        host.modified.clear();
        box.updateControl(1);
        QCOMPARE(box.styleSheet(), doubleWhite);

        box.setValue(edited); // the widget's change path, as after the user's edit
        // A refused number is red, written nowhere, and still shown.
        QCOMPARE(host.writes.size(), written ? 1 : 0);
        if (written)
            QCOMPARE(host.writes[0].value, QVariant(edited));
        QCOMPARE(box.styleSheet(), written ? doubleYellow : doubleRed);
        QCOMPARE(box.value(), edited);
        box.updateControl(0); // the refresh does not repeat the rule
        QCOMPARE(box.styleSheet(), written ? doubleYellow : doubleWhite);
    }

    void filling_data()
    {
        columns<Options, QVariant, QStringList, QStringList, int>("options", "value", "texts",
                                                                  "values", "current");

        row("contiguous", speeds(), QVariant("250"),
            QStringList{"125 kbit/s", "250 kbit/s", "500 kbit/s"}, QStringList{"125", "250", "500"},
            1);
        QTest::newRow("value held as bytes finds its text") // on Qt 6 as on Qt 5
            << speeds() << QVariant(QByteArray("500"))
            << QStringList{"125 kbit/s", "250 kbit/s", "500 kbit/s"}
            << QStringList{"125", "250", "500"} << 2;
        row("gap leaves blank, key past end lost",
            Options{{0, {"A", "a"}}, {1, {"B", "b"}}, {3, {"F", "f"}}}, QVariant("f"),
            QStringList{"A", "B", ""}, QStringList{"a", "b", ""}, 0);
    }

    void filling()
    {
        auto [options, value, texts, values, current] =
            fetch<Options, QVariant, QStringList, QStringList, int>("options", "value", "texts",
                                                                    "values", "current");

        TestHost host;
        MainConfigObject &object = host.add(10, 0, value);
        object.options = options;
        CfgComboBox combo;
        combo.addItem(QStringLiteral("stale"));
        QSignalSpy changedSpy(&combo, SIGNAL(cfgComboBoxChanged()));
        combo.setReference(&host, 10, nullptr, {});

        QStringList shownTexts, shownValues;
        for (int i = 0; i < combo.count(); ++i) {
            shownTexts << combo.itemText(i);
            shownValues << combo.itemData(i).toString();
        }
        QCOMPARE(shownTexts, texts);
        QCOMPARE(shownValues, values);
        QCOMPARE(combo.currentIndex(), current);
        // Filling the list is not an edit.
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(changedSpy.count(), 0);
    }

    void comboColour_data()
    {
        columns<bool, bool, bool, QString>("error", "enabled", "matchesStored", "expected");

        row("stored, enabled", false, true, true, comboSheet("white"));
        row("stored, disabled", false, false, true, comboSheet("#f1f1f1"));
        row("changed, disabled", false, false, false, comboSheet("#ffff8e"));
        row("error wins, enabled", true, true, false, comboSheet("red"));
    }

    void comboColour()
    {
        auto [error, enabled, matchesStored, expected] =
            fetch<bool, bool, bool, QString>("error", "enabled", "matchesStored", "expected");

        TestHost host;
        host.add(10, 0, "250").options = speeds();
        host.stored[10] = matchesStored ? QVariant("250") : QVariant("500");
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});
        combo.setEnabled(enabled);
        combo.setError(error);
        combo.updateControl(1);
        QCOMPARE(combo.styleSheet(), expected);
    }

    // An enabled refresh leaves every item white, whatever the host did to the list since
    // the last one.
    void itemsStayWhite_data()
    {
        QTest::addColumn<HostAction>("action");
        const auto red = [](QStandardItem *item) {
            item->setBackground(Qt::red);
            return item;
        };
        row("item recoloured", HostAction([](CfgComboBox &combo) {
                combo.setItemData(1, QColor(Qt::red), Qt::BackgroundRole);
            }));
        row("coloured row added", HostAction([red](CfgComboBox &combo) {
                qobject_cast<QStandardItemModel *>(combo.model())
                    ->appendRow(red(new QStandardItem));
            }));
        row("other model", HostAction([red](CfgComboBox &combo) {
                auto *model = new QStandardItemModel(&combo);
                model->appendRow(red(new QStandardItem));
                combo.setModel(model);
            }));
        row("other column", HostAction([red](CfgComboBox &combo) {
                auto *model = qobject_cast<QStandardItemModel *>(combo.model());
                model->setItem(0, 1, red(new QStandardItem));
                combo.updateControl(0);
                combo.setModelColumn(1);
            }));
        row("other root", HostAction([red](CfgComboBox &combo) {
                auto *model = qobject_cast<QStandardItemModel *>(combo.model());
                model->item(0)->appendRow(red(new QStandardItem));
                combo.updateControl(0);
                combo.setRootModelIndex(model->index(0, 0));
            }));
    }

    void itemsStayWhite()
    {
        QFETCH(HostAction, action);
        TestHost host;
        host.add(10, 0, "250").options = speeds();
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});
        combo.updateControl(1);
        action(combo);
        combo.updateControl(0);
        QVERIFY(combo.count() > 0);
        for (int i = 0; i < combo.count(); ++i)
            QCOMPARE(combo.itemData(i, Qt::BackgroundRole), QVariant(QColor(Qt::white)));
    }

    void keyEditWritesThenSignals()
    {
        TestHost host;
        host.add(10, 0, "125").options = speeds();
        host.stored[10] = QVariant("125");
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});

        QString sheetAtSignal; // emitted after the write and after the refresh
        connect(&combo, &CfgComboBox::cfgComboBoxChanged, this,
                [&] { sheetAtSignal = host.writes.isEmpty() ? "" : combo.styleSheet(); });
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down);

        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value, QVariant("250"));
        QCOMPARE(sheetAtSignal, comboSheet("yellow"));
    }

    void sameTextWritesFirstValue()
    {
        // Deliberate: the edit finds its entry by the shown text, so of two entries with the
        // same text the first one's value is written whichever the user picked.
        TestHost host;
        host.add(10, 0, "a").options = {{0, {"x", "a"}}, {1, {"y", "b"}}, {2, {"y", "c"}}};
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});
        combo.setCurrentIndex(2);
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value, QVariant("b"));
    }

    void skipGuardsAndOtherSelections()
    {
        TestHost host;
        host.add(10, 0, "125").options = speeds();
        host.add(11, 0, "500");
        host.stored[10] = QVariant("125");
        CfgComboBox combo;
        QSignalSpy spy(&combo, SIGNAL(cfgComboBoxChanged()));
        combo.setSkip(true);
        combo.setReference(&host, 10, nullptr, {}); // skip survives binding
        combo.updateControl(1);
        combo.updateSelection(11); // selects the entry holding another parameter's value
        QCOMPARE(combo.currentIndex(), 2);
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(spy.count(), 0);

        combo.setSkip(false);
        combo.updateSelection(10); // without skip the change is written
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value, QVariant("125"));
        QCOMPARE(spy.count(), 1);
    }

    // Each pattern's verdict, Intermediate (may still be typed) apart from Invalid (refused as
    // typed): the same on every build, odd escapes included.
    void validators_data()
    {
        columns<int, QString, int>("type", "text", "state");

        const QString sep = pointLocale() ? "." : ",", other = pointLocale() ? "," : ".";
        auto row = [](int type, const QString &text, QValidator::State state) {
            QTest::addRow("type %d: '%s'", type, qPrintable(text)) << type << text << int(state);
        };
        const auto ok = QValidator::Acceptable, partial = QValidator::Intermediate,
                   refused = QValidator::Invalid;
        row(21, "-", partial);
        row(21, "1-", refused);
        row(1, "12", ok);
        row(1, "", partial);
        row(1, "-12", refused);
        row(18, "1" + sep, partial);
        row(18, "1" + sep + "12345", ok);
        row(18, "1" + sep + "123456", refused);
        row(30, "-1" + sep + "5", ok);
        row(30, "-1" + other + "5", refused);
        row(10, "192.168.", partial);
        row(10, "192.168.0.1", ok);
        row(10, "256.1.1.1", refused);
        row(12, "+48600100200", ok);
        row(12, "-1", refused);
        row(12, "123456789012345678901234567890", refused);
        row(16, "Auto 12+", ok);
        row(16, "a_", ok); // "\a-z" is the range from the bell character to z
        row(16, "", partial);
        row(16, "zażółć", refused);
        row(17, "a-b?@#%^*()=_<>,./~`'", ok);
        row(17, "a{b", refused);
        row(0, "anything ~{|}", ok);
    }

    void validators()
    {
        auto [type, text, state] = fetch<int, QString, int>("type", "text", "state");

        TestHost host;
        host.add(10, type, QString());
        CfgLineEdit edit;
        edit.setReference(&host, 10, nullptr, {});
        int pos = 0;
        QCOMPARE(
            int(edit.validator() ? edit.validator()->validate(text, pos) : QValidator::Acceptable),
            state);
    }

    void lineBindAndEdit_data()
    {
        // echoes: written by binding
        // text: then set as by the user
        // written: invalid: nothing written
        columns<int, QVariant, QString, QVariantList, bool, QString, QVariant, QString>(
            "ref", "value", "shown", "echoes", "error", "text", "written", "sheet");

        row("number echoes as text; text written", 10, QVariant(42u), "42", QVariantList{"42"},
            false, "123", QVariant("123"), lineYellow);
        row("refused by validator still shown; trailing blank refused", 10, QVariant("12ab"),
            "12ab", QVariantList{"12ab"}, false, "ab ", QVariant(), lineRed);
        row("blank at end not echoed; empty written", 10, QVariant("12 "), "12 ", QVariantList(),
            false, "", QVariant(""), lineYellow);
        row("error blocks the edit", 10, QVariant("a"), "a", QVariantList{"a"}, true, "123",
            QVariant(), lineRed);
        row("parameter 4 emptied, error", 4, QVariant(0xFFFFFFFFu), "4294967295",
            QVariantList{"4294967295"}, true, "", QVariant(0xFFFFFFFFu), lineWhite);
    }

    void lineBindAndEdit()
    {
        auto [ref, value, shown, echoes, error, text, written, sheet] =
            fetch<int, QVariant, QString, QVariantList, bool, QString, QVariant, QString>(
                "ref", "value", "shown", "echoes", "error", "text", "written", "sheet");

        TestHost host;
        host.add(ref, 1, value);
        host.onWrite = [&](int r, const QVariant &) { host.modified.insert(r); };
        CfgLineEdit edit;
        edit.setReference(&host, ref, nullptr, {});
        QCOMPARE(edit.text(), shown);
        compareWrites(host, echoes);
        host.writes.clear();
        host.modified.clear();
        edit.updateControl(1);
        QCOMPARE(edit.styleSheet(), lineWhite);
        edit.setError(error);
        edit.setText(text); // the public slot: an edit like the user's
        compareWrites(host, written.isValid() ? QVariantList{written} : QVariantList());
        QCOMPARE(edit.styleSheet(), sheet);
    }

    void userTyping()
    {
        // Real keys: the validator swallows what its type refuses, every accepted key is a
        // write, and emptying parameter 4 writes its special value.
        TestHost host;
        host.add(4, 1, QVariant(7u));
        CfgLineEdit edit;
        edit.setReference(&host, 4, nullptr, {});
        host.writes.clear();
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClicks(&edit, QStringLiteral("1a2"));
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        compareWrites(host, {QVariant("71"), QVariant("712"), QVariant(0xFFFFFFFFu)});
    }

    void paintingAndDisplayText()
    {
        TestHost host;
        host.add(10, 1, 5u);
        CfgLineEdit edit;
        edit.setReference(&host, 10, nullptr, {});
        host.writes.clear();
        host.invalid.insert(10);
        host.modified.insert(10);
        edit.updateControl(1);
        QCOMPARE(edit.styleSheet(), lineRed); // invalid wins over modified

        host.invalid.clear();
        edit.displayText(QStringLiteral("77")); // shown only: no write, no repaint
        QCOMPARE(edit.displayText(), QStringLiteral("77"));
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(edit.styleSheet(), lineRed);
        edit.setText(QStringLiteral("78")); // still connected afterwards
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(edit.styleSheet(), lineYellow);
    }
};

QTEST_MAIN(TestValueControls)
#include "tst_valuecontrols.moc"
