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
    void initTestCase();
    void dialog_data();
    void dialog();
    void messageBox_data();
    void messageBox();
    void networkNames_data();
    void networkNames();

private:
    void setEnglish(bool english);
    // Checks a shown dialog: its title, and that none of its texts is left in Polish.
    void check(QWidget *dialog, const QString &title, bool english, const QString &name);

    QTranslator translator;
    // The catalogue's texts whose Polish and English differ.
    QSet<QString> polish;
    QSet<QString> englishTexts;
};

void TestTranslations::initTestCase()
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
        else if (xml.name() == QLatin1String("translation")) {
            const QString translation = xml.readElementText();
            if (translation != source) {
                polish.insert(source);
                englishTexts.insert(translation);
            }
        }
    }
    QVERIFY(polish.contains(QStringLiteral("Polska")));
    QDir().mkpath(QStringLiteral(TELECFG_SHOTS));
}

void TestTranslations::setEnglish(bool english)
{
    QCoreApplication::removeTranslator(&translator);
    if (english)
        QCoreApplication::installTranslator(&translator);
    fillCountryTable(); // the country names are translated when the table is built
}

void TestTranslations::check(QWidget *dialog, const QString &title, bool english,
                             const QString &name)
{
    QCOMPARE(dialog->windowTitle(), title);
    const QStringList texts = textsOf(dialog);
    for (const QString &text : texts) {
        const QSet<QString> &wrong = english ? polish : englishTexts;
        QVERIFY2(!wrong.contains(text) && !wrong.contains(text.section(" (", 0, 0)),
                 qPrintable(name + ": " + text));
    }
    if (english)
        QVERIFY(dialog->grab().save(QStringLiteral(TELECFG_SHOTS "/") + name + ".png"));
}

void TestTranslations::dialog_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("title");
    const struct
    {
        const char *name;
        const char *polish;
        const char *english;
    } dialogs[] = {
        {"cmddialog", "Wykonaj zdalny rozkaz", "Run a remote command"},
        {"dualinputdlg", "Dialog", "Dialog"},
        {"skipreaddatadialog", "Odczyt - pomijane dane", "Reading - data to skip"},
        {"countrycode", "Sieć komórkowa", "Mobile network"},
        {"changereview", "Przegląd zmian", "Review changes"},
        {"readblockconfigwizard", "Import konfiguracji z pliku",
         "Import configuration from a file"},
    };
    for (const auto &d : dialogs) {
        QTest::addRow("%s, Polish", d.name) << d.name << false << QString::fromUtf8(d.polish);
        QTest::addRow("%s, English", d.name) << d.name << true << QString::fromUtf8(d.english);
    }
}

void TestTranslations::dialog()
{
    QFETCH(QString, name);
    QFETCH(bool, english);
    QFETCH(QString, title);
    setEnglish(english);
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
        QCOMPARE(summary, english ? QStringLiteral("3 elements: 2 added, 1 removed")
                                  : QStringLiteral("3 elementy: 2 dodane, 1 usunięty"));
    }
    if (dialog) {
        dialog->show();
        check(dialog.get(), title, english, name);
        return;
    }
    // The wizard builds its dialog inside exec: look at it there, then cancel.
    bool seen = false;
    ModalCatcher catcher([&](QWidget *shown) {
        if (!seen) {
            seen = true;
            check(shown, title, english, name);
        }
        static_cast<QDialog *>(shown)->reject();
    });
    QWidget parent;
    ReadBlockConfigWizard wizard(QString(), &parent);
    QCOMPARE(wizard.exec(QDir::tempPath()), 1);
    QVERIFY(seen);
}

void TestTranslations::messageBox_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("Polish") << false << "Nowy element"
                            << "Identyfikator jest już używany";
    QTest::newRow("English") << true << "New element"
                             << "The identifier is already in use";
}

void TestTranslations::messageBox()
{
    QFETCH(bool, english);
    QFETCH(QString, title);
    QFETCH(QString, text);
    setEnglish(english);
    TestHost host;
    MainConfigObject &object = host.add(40, 13, QVariant::fromValue(QVector<QString>{"a", ""}));
    object.capacity = 3;
    CfgListWidget list;
    list.setReference(&host, 40, nullptr, {});
    ModalCatcher catcher;
    QCOMPARE(list.addValue(QVariant(QStringLiteral("a")), 40), 1); // a duplicate
    QCOMPARE(catcher.seen.size(), 1);
    QCOMPARE(catcher.seen.at(0).title, title);
    QCOMPARE(catcher.seen.at(0).text, text);
}

void TestTranslations::networkNames_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<quint32>("networkId");
    QTest::addColumn<QString>("country");
    QTest::addColumn<QString>("op");
    QTest::newRow("Polish") << false << (260u << 10 | 1) << "Polska"
                            << "";
    QTest::newRow("English") << true << (260u << 10 | 1) << "Poland"
                             << "";
    QTest::newRow("English, every country's name") << true << 0u << ""
                                                   << "";
    QTest::newRow("Polish, unknown") << false << (1u << 10 | 5) << "Nieznany"
                                     << "Nieznany";
    QTest::newRow("English, unknown") << true << (1u << 10 | 5) << "Unknown"
                                      << "Unknown";
    QTest::newRow("English, all") << true << (204u << 10 | CodeAll) << "Netherlands"
                                  << "All";
    QTest::newRow("English, Côte") << true << (612u << 10 | CodeAll) << "Ivory Coast"
                                   << "All";
}

void TestTranslations::networkNames()
{
    QFETCH(bool, english);
    QFETCH(quint32, networkId);
    QFETCH(QString, country);
    QFETCH(QString, op);
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

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
