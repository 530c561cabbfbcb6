// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcheckbox.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QtTest>

class TestCfgCheckBox : public TestCase
{
    Q_OBJECT

private slots:
    void bindAndEdit_data()
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

    void bindAndEdit()
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

    void styleSheets_data()
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

    void styleSheets()
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
};

QTEST_MAIN(TestCfgCheckBox)
#include "tst_cfgcheckbox.moc"
