// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/dialogs/gui.h"
#include "telecfg/form/formbinder.h"
#include "tests/support/datatable.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace {
const QByteArray table = R"({"version": 12, "parameters": [
    {"ref": 101, "type": 22, "value": 1},
    {"ref": 102, "minimum": 10, "maximum": 1500, "value": 400, "stored": 380, "hardware": [2]},
    {"ref": 103, "value": "x"}]})";

// A host's own control built on a bound one.
class HostSpinBox : public CfgSpinBox
{
    Q_OBJECT

public:
    using CfgSpinBox::CfgSpinBox;
};

struct Form
{
    QWidget widget;
    QLabel *label = new QLabel(QStringLiteral("Pojemność"), &widget);
    CfgSpinBox *spin = new CfgSpinBox(&widget);
    QLabel *unit = new QLabel(QStringLiteral("l"), &widget);
    CfgCheckBox *box = new CfgCheckBox(&widget);

    Form()
    {
        spin->setObjectName(QStringLiteral("cfg_102"));
        label->setBuddy(spin);
        unit->setObjectName(QStringLiteral("cfg_102_unit"));
        box->setObjectName(QStringLiteral("cfg_101"));
        for (const char *name : {"cfg_999", "cfg_x1", "cfg_"})
            (new CfgLineEdit(&widget))->setObjectName(QLatin1String(name));
        (new QLineEdit(&widget))->setObjectName(QStringLiteral("cfg_103"));
        widget.show();
    }
};
} // namespace

class TestFormBinder : public QObject
{
    Q_OBJECT

private slots:
    void bindsByName()
    {
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(table));
        Form form;
        FormBinder binder;
        QStringList problems;
        for (const FormBinder::Problem &problem : binder.bind(&form.widget, &parameters))
            problems.append(problem.text());
        QCOMPARE(problems,
                 (QStringList{QStringLiteral("cfg_999: no such parameter"),
                              QStringLiteral("cfg_x1: no parameter number after \"cfg_\""),
                              QStringLiteral("cfg_: no parameter number after \"cfg_\""),
                              QStringLiteral("cfg_103: not a bound control")}));
        QCOMPARE(binder.parameters(), (QList<int>{102, 101}));
        QCOMPARE(binder.control(102), form.spin);
        QCOMPARE(form.spin->value(), 400);
        QVERIFY(form.box->isChecked());
        QCOMPARE(parameters.object(102).label, form.label);

        // Another table's existence check decides instead of the ready table's.
        QCOMPARE(binder.bind(&form.widget, &parameters, [](int ref) { return ref != 101; }).size(),
                 4);
        QCOMPARE(binder.parameters(), (QList<int>{102, 999}));
    }

    void refreshAndRebind()
    {
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(table));
        Form form;
        FormBinder binder;
        binder.bind(&form.widget, &parameters);
        binder.refresh(1);
        QVERIFY(form.spin->isHidden());
        QVERIFY(form.label->isHidden()); // the buddy label and the cfg_102_ widget go with it
        QVERIFY(form.unit->isHidden());
        binder.refresh(2);
        QVERIFY(!form.spin->isHidden() && !form.label->isHidden() && !form.unit->isHidden());
        binder.refresh(0); // the last id stays
        QVERIFY(!form.spin->isHidden());
        QCOMPARE(binder.explainHidden(102), QStringLiteral("parameter 102 is shown"));

        // A revert reaches the controls by itself.
        parameters.revert();
        QCOMPARE(form.spin->value(), 380);

        // Binding to another table moves every control over.
        ParameterTable other;
        QVERIFY(other.loadJson(table));
        binder.bind(&form.widget, &other);
        form.spin->setValue(500);
        QCOMPARE(other.value(102), QVariant(500));
        QCOMPARE(parameters.value(102), QVariant(380));
    }

    void bindsSubclassesOfBoundControls()
    {
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(table));
        QWidget form;
        auto *spin = new HostSpinBox(&form);
        spin->setObjectName(QStringLiteral("cfg_102"));
        FormBinder binder;
        QVERIFY(binder.bind(&form, &parameters).isEmpty());
        QCOMPARE(spin->value(), 400);
    }

    void explainsHidden_data()
    {
        columns<QByteArray, int, int, QString>("record", "hardwareId", "reason", "text");

        row("shown", QByteArray(R"("minVersion": 12)"), 1, int(HiddenReason::Shown),
            "parameter 5 is shown");
        row("no version range", QByteArray(R"("minVersion": {"3": 10}, "versionKey": 4)"), 1,
            int(HiddenReason::NoVersionRange),
            "parameter 5 is hidden: the record has no version range (no lowest version under "
            "version key 4 nor key 0), so it is shown from configuration version 99 on; the "
            "configuration version is 12");
        row("below", QByteArray(R"("minVersion": 13)"), 1, int(HiddenReason::BelowVersionRange),
            "parameter 5 is hidden: configuration version 12 is below its lowest version 13");
        row("above", QByteArray(R"("maxVersion": 11)"), 1, int(HiddenReason::AboveVersionRange),
            "parameter 5 is hidden: configuration version 12 is above its highest version 11");
        row("hardware", QByteArray(R"("hardware": [2, 3])"), 1,
            int(HiddenReason::HardwareNotListed),
            "parameter 5 is hidden: hardware id 1 is not among its hardware ids 2, 3");
        row("hardware listed", QByteArray(R"("hardware": [2, 3])"), 3, int(HiddenReason::Shown),
            "parameter 5 is shown");
        row("licence", QByteArray(R"("licence": 2)"), 1, int(HiddenReason::ClosedByLicence),
            "parameter 5 is hidden: its licence gate 2 is above the licence level 1");
        row("on request", QByteArray(R"("hidden": true)"), 1, int(HiddenReason::HiddenOnRequest),
            "parameter 5 is hidden: hidden on request (setHidden(true))");
    }

    void explainsHidden()
    {
        auto [record, hardwareId, reason, text] =
            fetch<QByteArray, int, int, QString>("record", "hardwareId", "reason", "text");
        setGUILicenseLevel(1);
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(R"({"version": 12, "parameters": [{"ref": 5, "value": 1, )" +
                                    record + "}]}"));
        if (record.contains("hidden"))
            parameters.object(5).hidden = true;
        if (record.contains("versionKey"))
            parameters.object(5).minVersions.remove(0); // the table's "from version 0" default
        QWidget form;
        auto *box = new CfgCheckBox(&form);
        box->setObjectName(QStringLiteral("cfg_5"));
        form.show();
        FormBinder binder;
        binder.bind(&form, &parameters);
        binder.refresh(hardwareId);
        QCOMPARE(int(hiddenReason(parameters, 5, hardwareId)), reason);
        QCOMPARE(binder.explainHidden(5), text); // 0: the id of the last refresh
        // The control and the diagnostic decide alike.
        QCOMPARE(box->isHidden(), reason != int(HiddenReason::Shown));
        setGUILicenseLevel(0);
    }
};

QTEST_MAIN(TestFormBinder)
#include "tst_formbinder.moc"
