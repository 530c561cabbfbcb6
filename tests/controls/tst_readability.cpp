// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// What every kind of bound control tells in each state beyond its colour, and whether its
// text can be read, under the default palette and a dark one.
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/statecolours.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <QtTest>
#include <cmath>

namespace {
constexpr int ref = 10;

double channel(int value)
{
    const double v = value / 255.0;
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double luminance(QRgb c)
{
    return 0.2126 * channel(qRed(c)) + 0.7152 * channel(qGreen(c)) + 0.0722 * channel(qBlue(c));
}

double contrast(QRgb a, QRgb b)
{
    const double x = luminance(a), y = luminance(b);
    return (qMax(x, y) + 0.05) / (qMin(x, y) + 0.05);
}

QPalette darkPalette()
{
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2a));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Button, QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::ButtonText, Qt::white);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(0x7f, 0x7f, 0x7f));
    return dark;
}

// The text's contrast within `area` of `image`: the background is the area's most frequent
// colour, the text its pixel farthest from it (a glyph's core). The corner cue is left out.
double textContrast(const QImage &image, const QRect &area)
{
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if ((x - area.left()) + (y - area.top()) > 14)
                ++counts[image.pixel(x, y) | 0xff000000];
    QRgb background = 0;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        if (it.value() > most)
            most = it.value(), background = it.key();
    double best = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        best = qMax(best, contrast(it.key(), background));
    return best;
}

// A kind bound to a record in one state, shown on a form with a label.
struct Bound
{
    QWidget form;
    QLabel label{QStringLiteral("&Pojemność:"), &form};
    TestHost host;
    AnyControl control;

    Bound(const QString &kind, const QString &state) : control(kind, &form)
    {
        control.widget->setFocusPolicy(Qt::NoFocus);
        control.widget->move(0, 30);
        control.widget->resize(
            220, kind == QLatin1String("list") || kind == QLatin1String("table") ? 120 : 28);
        MainConfigObject &record = addEditableRecord(host, kind, ref);
        record.minVersions[0] = 0;
        record.toolTip = QStringLiteral("Pojemność zbiornika");
        if (kind == QLatin1String("lineedit"))
            record.value = QStringLiteral("MMMM 400");
        else if (kind == QLatin1String("spinbox"))
            record.value = 88u;
        else if (kind == QLatin1String("list"))
            record.value = QVariant::fromValue(QVector<quint32>{8888, 0, 0, 0});
        else if (kind == QLatin1String("table"))
            record.value =
                QVariant::fromValue(ColumnVectors(2, QVector<QByteArray>{"8888", {}, {}, {}}));
        host.stored[ref] = record.value;
        if (state == QLatin1String("modified")) {
            host.modified.insert(ref);
            host.stored[ref] = QStringLiteral("2");
            host.modifiedItemsOf[ref] = {0};
        } else if (state == QLatin1String("invalid")) {
            host.invalid.insert(ref);
            host.invalidItemsOf[ref] = {0};
        }
        control.setReference(&host, ref, &label, {&label});
        if (state == QLatin1String("invalid") && kind == QLatin1String("combobox"))
            control.setError(true);
        if (state == QLatin1String("disabled"))
            control.setEnabled(false);
        control.updateControl(1);
        form.resize(240, 160);
        form.show();
    }

    QWidget *widget() const { return control.widget; }
    auto *view() const { return qobject_cast<QAbstractItemView *>(widget()); }

    // Where the value's text stands, in the coordinates of grab()'s image.
    QRect textArea() const
    {
        if (auto *items = view()) {
            const QRect cell = items->visualRect(items->model()->index(0, 0));
            return cell.translated(items->viewport()->pos()).adjusted(1, 1, -1, -1);
        }
        const int buttons =
            widget()->inherits("QAbstractSpinBox") || widget()->inherits("QComboBox") ? 24 : 0;
        return widget()->rect().adjusted(3, 3, -3 - buttons, -3);
    }
};
} // namespace

class TestReadability : public TestCase
{
    Q_OBJECT

private slots:
    // Runs first: this suite ships no images, so the first control shown whose sheet names
    // images warns once, naming them and how to get them; no other warns again.
    void warnsOnceWithoutImages()
    {
        static QStringList warnings;
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &, const QString &message) {
                if (type == QtWarningMsg && message.startsWith(QLatin1String("telecfg:")))
                    warnings.append(message);
            });
        TestHost host;
        host.add(3, 1, true).minVersions[0] = 0;
        host.add(5, 0, QStringLiteral("a")).options[0] = {QStringLiteral("a"), QStringLiteral("a")};
        host.records[5].minVersions[0] = 0;
        QWidget form;
        auto *unbound = new CfgComboBox(&form); // no sheet yet: nothing to look for
        auto *box = new CfgCheckBox(&form);
        auto *combo = new CfgComboBox(&form);
        form.show();
        box->setReference(&host, 3, nullptr, {});
        combo->setReference(&host, 5, nullptr, {});
        box->updateControl(1);
        combo->updateControl(1);
        box->hide();
        box->show();
        unbound->setReference(&host, 5, nullptr, {});
        unbound->hide();
        unbound->show();
        qInstallMessageHandler(previous);
        QCOMPARE(warnings.size(), 1);
        QVERIFY2(warnings[0].contains(QLatin1String(":/images/checkbox_grey_unchecked.png")) &&
                     warnings[0].contains(QLatin1String("initDefaultImages()")),
                 qPrintable(warnings[0]));
    }

    void initTestCase()
    {
        allowListConnectionWarning();
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }

    void textReadsInEveryPalette_data()
    {
        columns<QString, QString, bool, bool>("kind", "state", "dark", "darkStates");
        for (const char *kind :
             {"lineedit", "spinbox", "doublespinbox", "combobox", "list", "table"})
            for (const char *state : {"normal", "modified", "invalid", "disabled"}) {
                QTest::addRow("%s %s default", kind, state) << kind << state << false << false;
                QTest::addRow("%s %s dark", kind, state) << kind << state << true << false;
                QTest::addRow("%s %s dark, dark states", kind, state)
                    << kind << state << true << true;
            }
    }

    // Text reaches 4.5:1 against the background the state paints, in any palette.
    void textReadsInEveryPalette()
    {
        auto [kind, state, dark, darkStates] =
            fetch<QString, QString, bool, bool>("kind", "state", "dark", "darkStates");
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        setStateColours(darkStates ? StateColours::Dark : StateColours::Standard);
        Bound bound(kind, state);
        setStateColours(StateColours::Standard);
        QVERIFY(QTest::qWaitForWindowExposed(&bound.form));
        const QImage image = bound.widget()->grab().toImage();
        const double ratio = textContrast(image, bound.textArea());
        qDebug("contrast %.2f", ratio); // for the record of the lowest per palette and state
        QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("contrast %1").arg(ratio)));
    }

    void stateToldBeyondColour_data()
    {
        columns<QString, QString, QString>("kind", "state", "words");
        for (const char *kind :
             {"lineedit", "spinbox", "doublespinbox", "combobox", "checkbox", "radiobutton"})
            QTest::addRow("%s modified", kind) << kind << "modified"
                                               << "Zmieniona";
        for (const char *kind : {"lineedit", "spinbox", "doublespinbox", "combobox"})
            QTest::addRow("%s invalid", kind) << kind << "invalid"
                                              << "Nieprawidłowa";
        // The editors say it of the parameter, and each element of itself.
        row("list modified", "list", "modified", "Zmieniona\tZmodyfikowany element");
        row("list invalid", "list", "invalid", "Nieprawidłowa\tNieprawidłowy element");
        row("table modified", "table", "modified", "Zmieniona\tZmodyfikowany element");
        row("table invalid", "table", "invalid", "Nieprawidłowa\tNieprawidłowy element");
    }

    // A modified or invalid control says so in its tool tip (after the host's own text) and
    // its accessible description, and shows a cue that tells the state in greyscale too: the
    // state's rendering differs from the normal one by at least 3:1 somewhere.
    void stateToldBeyondColour()
    {
        auto [kind, state, words] = fetch<QString, QString, QString>("kind", "state", "words");
        Bound normal(kind, QStringLiteral("normal"));
        Bound marked(kind, state);
        QVERIFY(QTest::qWaitForWindowExposed(&marked.form));
        const QString tip = marked.widget()->toolTip();
        QVERIFY2(tip.startsWith(QStringLiteral("Pojemność zbiornika\n")), qPrintable(tip));
        QVERIFY2(
            tip.section(QLatin1Char('\n'), 1).startsWith(words.section(QLatin1Char('\t'), 0, 0)),
            qPrintable(tip));
        if (auto *items = marked.view())
            QCOMPARE(items->model()->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
                     words.section(QLatin1Char('\t'), 1));
        QCOMPARE(normal.widget()->toolTip(), QStringLiteral("Pojemność zbiornika"));
        QCOMPARE(marked.widget()->accessibleDescription(), tip);

        const QImage plain =
            normal.widget()->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        const QImage cued =
            marked.widget()->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        double most = 1;
        for (int y = 0; y < qMin(plain.height(), cued.height()); ++y)
            for (int x = 0; x < qMin(plain.width(), cued.width()); ++x)
                most = qMax(most, contrast(plain.pixel(x, y), cued.pixel(x, y)));
        QVERIFY2(most >= 3, qPrintable(QStringLiteral("greyscale difference %1").arg(most)));
    }

    void stateLineOverATable_data()
    {
        columns<QString, QVariant, QVariant, int, int, QString, QString, QString>(
            "kind", "stored", "value", "step", "maxLength", "pattern", "typed", "line");
        // Modified: the stored value as the user reads it.
        row("spinbox modified", "spinbox", QVariant(40u), QVariant(7u), 1, -1, "", "",
            "Zmieniona, zapisana wartość: 40");
        row("combobox modified: the option's text", "combobox", QVariant("1"), QVariant("2"), 1, -1,
            "", "", "Zmieniona, zapisana wartość: a");
        row("checkbox modified: in words", "checkbox", QVariant(0u), QVariant(1u), 1, -1, "", "",
            "Zmieniona, zapisana wartość: niezaznaczone");
        row("lineedit modified", "lineedit", QVariant("Pojazd 17"), QVariant("Pojazd 18"), 1, -1,
            "", "", "Zmieniona, zapisana wartość: Pojazd 17");
        // Invalid: why, where the table's rules or the control itself tell it.
        row("pattern", "lineedit", QVariant("12a4"), QVariant("12a4"), 1, -1, "[0-9]{4}", "",
            "Nieprawidłowa: nie pasuje do wzorca");
        row("too long by one", "lineedit", QVariant("12345"), QVariant("12345"), 1, 4, "", "",
            "Nieprawidłowa: za długa, najwyżej 4 znaków");
        row("not a multiple of the step", "spinbox", QVariant(7u), QVariant(7u), 5, -1, "", "",
            "Nieprawidłowa: nie jest wielokrotnością kroku 5");
        row("typed with a blank at an end", "lineedit", QVariant("abc"), QVariant("abc"), 1, -1, "",
            "abc ", "Nieprawidłowa: odstęp na początku lub na końcu");
    }

    // Over a table that knows the stored value and the rules, the state line says what is
    // stored of a modified value and why an invalid one is invalid.
    void stateLineOverATable()
    {
        auto [kind, stored, value, step, maxLength, pattern, typed, line] =
            fetch<QString, QVariant, QVariant, int, int, QString, QString, QString>(
                "kind", "stored", "value", "step", "maxLength", "pattern", "typed", "line");
        TestHost scratch;
        MainConfigObject record = addEditableRecord(scratch, kind, ref);
        record.value = stored;
        record.step = step;
        if (kind == QLatin1String("lineedit")) {
            record.type = 0; // a free text: no range, no validator
            record.minimum = record.maximum = QVariant();
        }
        ParameterTable table;
        table.addRecord(ref, record);
        ParameterTable::Rules rules;
        rules.maxLength = maxLength;
        rules.pattern = pattern;
        table.setRules(ref, rules);
        table.setValue(ref, value);
        AnyControl control(kind);
        control.setReference(&table, ref, nullptr, {});
        control.updateControl(1);
        if (!typed.isEmpty()) {
            qobject_cast<QLineEdit *>(control.widget.data())->clear();
            QTest::keyClicks(control.widget.data(), typed);
        }
        QCOMPARE(control.widget->toolTip(), line);
    }

    void accessibleNameIsTheLabel_data()
    {
        columns<QString, QString, QString, QString>("kind", "own", "relabel", "name");
        for (const char *kind :
             {"lineedit", "spinbox", "doublespinbox", "combobox", "checkbox", "list", "table"})
            row(kind, kind, "", "", "Pojemność");
        row("radiobutton", "radiobutton", "", "", "Pojemność: Ręcznie");
        // The form retranslates its labels at a change of language, before its controls
        // hear of it.
        row("combobox retranslated", "combobox", "", "&Capacity:", "Capacity");
        row("radiobutton retranslated", "radiobutton", "", "&Capacity:", "Capacity: Ręcznie");
        row("host's own name kept", "spinbox", "Tank", "&Capacity:", "Tank");
    }

    // A screen reader names every kind after its label, through a change of language too; a
    // radio button adds its own choice; a name the host gave the control itself stays.
    void accessibleNameIsTheLabel()
    {
        auto [kind, own, relabel, name] =
            fetch<QString, QString, QString, QString>("kind", "own", "relabel", "name");
        QWidget form;
        auto *label = new QLabel(QStringLiteral("&Pojemność:"), &form);
        AnyControl control(kind, &form);
        if (auto *radio = qobject_cast<CfgRadioButton *>(control.widget.data()))
            radio->setText(QStringLiteral("Ręcznie"));
        control.widget->setAccessibleName(own);
        TestHost host;
        addEditableRecord(host, kind, ref).minVersions[0] = 0;
        control.setReference(&host, ref, label, {});
        if (!relabel.isEmpty()) {
            label->setText(relabel);
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(&form, &change);
        }
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(control.widget.data());
        QVERIFY(face);
        QCOMPARE(face->text(QAccessible::Name), name);
    }

    // The description follows every change of state (the toolkit announces each change of a
    // description to assistive technology; the offscreen test platform has none to observe).
    void descriptionFollowsState()
    {
        Bound bound(QStringLiteral("spinbox"), QStringLiteral("normal"));
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(bound.widget());
        QCOMPARE(face->text(QAccessible::Description), QStringLiteral("Pojemność zbiornika"));
        bound.host.invalid.insert(ref);
        bound.host.records[ref].value = 120u; // as the host holds it
        bound.control.updateControl(0);
        QCOMPARE(face->text(QAccessible::Description),
                 QStringLiteral("Pojemność zbiornika\nNieprawidłowa: poza zakresem 0–100"));
        bound.host.invalid.clear();
        bound.control.updateControl(0);
        QCOMPARE(face->text(QAccessible::Description), QStringLiteral("Pojemność zbiornika"));
    }
};

QTEST_MAIN(TestReadability)
#include "tst_readability.moc"
