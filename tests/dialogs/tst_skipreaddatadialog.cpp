#include "telecfg/dialogs/skipreaddatadialog.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/modalcatcher.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {
// In the order of the constructor's flags and of the getters.
const QStringList boxNames{"cbBt", "cbFuel", "cbCan", "cbConf", "cbDallas"};

QList<bool> getters(const SkipReadDataDialog &dialog)
{
    return {dialog.getSkipBt(), dialog.getSkipFuel(), dialog.getSkipCan(), dialog.getSkipConf(),
            dialog.getSkipDallas()};
}

QList<bool> shownBoxes(QWidget *dialog)
{
    QList<bool> checked;
    for (const QString &name : boxNames)
        checked << dialog->findChild<QCheckBox *>(name)->isChecked();
    return checked;
}

QList<bool> onlyFlag(int index)
{
    QList<bool> flags{false, false, false, false, false};
    if (index >= 0)
        flags[index] = true;
    return flags;
}

void clickButton(QWidget *dialog, QDialogButtonBox::StandardButton button)
{
    auto *box = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}
} // namespace

class TestSkipReadDataDialog : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void flagsMapToBoxes_data();
    void flagsMapToBoxes();
    void cancelKeepsFlags();
};

void TestSkipReadDataDialog::form()
{
    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    SkipReadDataDialog dialog(nullptr, false, false, false, false, false);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(dialog.objectName(), QStringLiteral("SkipReadDataDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("[SkipReadDataDialog]Odczyt - pomijane dane"));
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(dialog.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lTitle"))->text(),
             QStringLiteral("[SkipReadDataDialog]Pomiń odczyt:"));
    const QStringList texts{"Bluetooth", "Paliwo", "CAN", "Pozostałe", "Dallas"};
    for (int i = 0; i < boxNames.size(); ++i)
        QCOMPARE(dialog.findChild<QCheckBox *>(boxNames[i])->text(),
                 QStringLiteral("[SkipReadDataDialog]") + texts[i]);
}

void TestSkipReadDataDialog::flagsMapToBoxes_data()
{
    QTest::addColumn<int>("flag");

    for (int i = 0; i < boxNames.size(); ++i)
        QTest::newRow(qPrintable(boxNames[i])) << i;
}

// Each flag of the constructor shows in its own box, and ticking only that box (from all
// clear) and confirming sets only its getter.
void TestSkipReadDataDialog::flagsMapToBoxes()
{
    QFETCH(int, flag);

    const QList<bool> flags = onlyFlag(flag);
    SkipReadDataDialog shown(nullptr, flags[0], flags[1], flags[2], flags[3], flags[4]);
    QList<bool> seen;
    {
        ModalCatcher look([&seen](QWidget *modal) {
            seen = shownBoxes(modal);
            clickButton(modal, QDialogButtonBox::Cancel);
        });
        QCOMPARE(shown.exec(), int(QDialog::Rejected));
    }
    QCOMPARE(seen, flags);
    QCOMPARE(getters(shown), flags);

    SkipReadDataDialog ticked(nullptr, false, false, false, false, false);
    ModalCatcher tick([flag](QWidget *modal) {
        auto *box = modal->findChild<QCheckBox *>(boxNames[flag]);
        // On the indicator: a box in the field column is wider than its text.
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(6, box->height() / 2));
        clickButton(modal, QDialogButtonBox::Ok);
    });
    QCOMPARE(ticked.exec(), int(QDialog::Accepted));
    QCOMPARE(getters(ticked), flags);
}

void TestSkipReadDataDialog::cancelKeepsFlags()
{
    SkipReadDataDialog dialog(nullptr, true, false, true, false, true);
    const QList<bool> before{true, false, true, false, true};
    const QList<bool> flipped{false, true, false, true, false};

    QList<bool> seen;
    auto flipAll = [&seen](QDialogButtonBox::StandardButton button) {
        return [&seen, button](QWidget *modal) {
            seen = shownBoxes(modal);
            for (const QString &name : boxNames)
                modal->findChild<QCheckBox *>(name)->click();
            clickButton(modal, button);
        };
    };
    {
        ModalCatcher catcher(flipAll(QDialogButtonBox::Cancel));
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    }
    QCOMPARE(seen, before);
    QCOMPARE(getters(dialog), before);
    {
        // The cancelled run's ticks are gone: the boxes start from the flags again.
        ModalCatcher catcher(flipAll(QDialogButtonBox::Ok));
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }
    QCOMPARE(seen, before);
    QCOMPARE(getters(dialog), flipped);
    {
        ModalCatcher closeByWindow([](QWidget *modal) { modal->close(); });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    }
    QCOMPARE(getters(dialog), flipped);
}

QTEST_MAIN(TestSkipReadDataDialog)
#include "tst_skipreaddatadialog.moc"
