// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The library in English: with the embedded English catalogue installed every dialog, message
// box and country name reads English; without it every text stays the Polish source text.
// The English dialogs are rendered to PNG files beside the test for a look.
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/dialogs/cmddialog.h"
#include "telecfg/dialogs/dualinputdlg.h"
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "telecfg/form/changereview.h"
#include "telecfg/import/readblockconfigwizard.h"
#include "telecfg/network/countrycode.h"
#include "telecfg/network/countrytable.h"
#include "telecfg/translations.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QTranslator>
#include <QTreeView>
#include <QXmlStreamReader>
#include <QtTest>
#include <memory>

namespace {

// Every text a user sees on a widget and its children, but for the toolkit's own standard
// buttons, which the host's catalogue of the toolkit translates.
QStringList textsOf(QWidget *top)
{
    QStringList texts{top->windowTitle()};
    for (QWidget *widget : top->findChildren<QWidget *>()) {
        texts << widget->toolTip();
        if (auto *label = qobject_cast<QLabel *>(widget))
            texts << label->text();
        auto *box = qobject_cast<QDialogButtonBox *>(widget->parentWidget());
        if (auto *button = qobject_cast<QAbstractButton *>(widget);
            button && !(box && box->standardButton(button) != QDialogButtonBox::NoButton))
            texts << button->text();
        if (auto *group = qobject_cast<QGroupBox *>(widget))
            texts << group->title();
        if (auto *combo = qobject_cast<QComboBox *>(widget)) {
            for (int i = 0; i < qMin(combo->count(), 3); ++i)
                texts << combo->itemText(i);
        }
    }

    texts.removeAll(QString());
    return texts;
}

} // namespace

class TestTranslations : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        allowListConnectionWarning();
        telecfgInitTranslations();
        // The path the README gives hosts.
        QVERIFY(translator.load(QStringLiteral(":/telecfg/translations/telecfg_en.qm")));
        QFile catalogue(QStringLiteral(TELECFG_CATALOGUE));
        QVERIFY(catalogue.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&catalogue);
        QString source;
        while (xml.readNextStartElement() || !xml.atEnd()) {
            if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            else if (xml.name() == QLatin1String("translation") && xml.readElementText() != source)
                polish.insert(source);
        }
        QVERIFY(polish.contains(QStringLiteral("Polska")));
        QDir().mkpath(QStringLiteral(TELECFG_SHOTS));
        setEnglish(true);
    }

    // The Polish texts of each dialog are pinned by its own suite.
    void dialog_data()
    {
        columns<QString, QString>("name", "title");
        row("cmddialog", "cmddialog", "Run a remote command");
        row("dualinputdlg", "dualinputdlg", "Dialog");
        row("skipreaddatadialog", "skipreaddatadialog", "Reading - data to skip");
        row("countrycode", "countrycode", "Mobile network");
        row("changereview", "changereview", "Review changes");
        row("readblockconfigwizard", "readblockconfigwizard", "Import configuration from a file");
    }

    void dialog()
    {
        auto [name, title] = fetch<QString, QString>("name", "title");
        QHash<int, QString> commands{{1, QStringLiteral("RESET")}};
        std::unique_ptr<QWidget> dialog;
        if (name == "cmddialog")
            dialog.reset(new CmdDialog(nullptr, commands));
        else if (name == "dualinputdlg")
            dialog.reset(new DualInputDlg);
        else if (name == "skipreaddatadialog")
            dialog.reset(new SkipReadDataDialog(nullptr, true, false, true, false, false));
        else if (name == "countrycode")
            dialog.reset(new CountryCode);
        ParameterTable table;
        if (name == "changereview") {
            QVERIFY(table.loadJson(R"({"parameters": [{"ref": 10, "type": 8, "capacity": 4,
                                       "value": [1, 3, 4], "stored": [1, 2]}]})"));
            dialog = std::make_unique<ChangeReview>(&table);
            // Polish chooses among three plural forms, English between two.
            const QString summary =
                dialog->findChild<QTreeView *>()->model()->index(0, 2).data().toString();
            QCOMPARE(summary, QStringLiteral("3 elements: 2 added, 1 removed"));
        }
        if (dialog) {
            dialog->show();
            check(dialog.get(), title, name);
            return;
        }
        // The wizard builds its dialog inside exec: look at it there, then cancel.
        bool seen = false;
        ModalCatcher catcher([&, name = name, title = title](QWidget *shown) {
            if (!seen)
                check(shown, title, name);
            seen = true;
            static_cast<QDialog *>(shown)->reject();
        });
        QWidget parent;
        ReadBlockConfigWizard wizard(QString(), &parent);
        QCOMPARE(wizard.exec(QDir::tempPath()), 1);
        QVERIFY(seen);
    }

    void messageBox()
    {
        TestHost host;
        host.add(40, 13, QVariant::fromValue(QVector<QString>{"a", ""})).capacity = 3;
        CfgListWidget list;
        list.setReference(&host, 40, nullptr, {});
        ModalCatcher catcher;
        QCOMPARE(list.addValue(QVariant(QStringLiteral("a")), 40), 1); // a duplicate
        QCOMPARE(catcher.seen.size(), 1);
        QCOMPARE(catcher.seen.at(0).title, QStringLiteral("New element"));
        QCOMPARE(catcher.seen.at(0).text, QStringLiteral("The identifier is already in use"));
    }

    void networkNames_data()
    {
        columns<bool, quint32, QString, QString>("english", "networkId", "country", "op");
        row("English", true, (260u << 10 | 1), "Poland", "");
        row("English, every country's name", true, 0u, "", "");
        row("English, unknown", true, (1u << 10 | 5), "Unknown", "Unknown");
        row("English, all", true, (204u << 10 | CodeAll), "Netherlands", "All");
        row("English, Côte", true, (612u << 10 | CodeAll), "Ivory Coast", "All");
        // Without the catalogue the table is built in Polish again.
        row("Polish again", false, (260u << 10 | CodeAll), "Polska", "Wszystkie");
    }

    void networkNames()
    {
        auto [english, networkId, country, op] =
            fetch<bool, quint32, QString, QString>("english", "networkId", "country", "op");
        setEnglish(english);
        if (networkId == 0) {
            for (auto it = countryTable.cbegin(); it != countryTable.cend(); ++it)
                QVERIFY2(!polish.contains(it->name), qPrintable(it->name));
            return;
        }
        QString countryName;
        QString operatorName;
        ::networkNames(networkId, countryName, operatorName);
        QCOMPARE(countryName, country);
        if (!op.isEmpty())
            QCOMPARE(operatorName, op);
    }

private:
    void setEnglish(bool english)
    {
        QCoreApplication::removeTranslator(&translator);
        if (english)
            QCoreApplication::installTranslator(&translator);
        fillCountryTable(); // the country names are translated when the table is built
    }

    // Checks a shown dialog: its title, and that none of its texts is left in Polish.
    void check(QWidget *dialog, const QString &title, const QString &name)
    {
        QCOMPARE(dialog->windowTitle(), title);
        for (const QString &text : textsOf(dialog))
            QVERIFY2(!polish.contains(text) && !polish.contains(text.section(" (", 0, 0)),
                     qPrintable(name + ": " + text));
        QVERIFY(dialog->grab().save(QStringLiteral(TELECFG_SHOTS "/") + name + ".png"));
    }

    QTranslator translator;
    // The catalogue's source texts whose English differs.
    QSet<QString> polish;
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
