#include "telecfg/dialogs/skipreaddatadialog.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/modalcatcher.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {
// Bit i stands for box i, in the order of the constructor's flags and of the getters.
const QStringList boxNames{"cbBt", "cbFuel", "cbCan", "cbConf", "cbDallas"};

int getters(const SkipReadDataDialog &dialog)
{
    return dialog.getSkipBt() | dialog.getSkipFuel() << 1 | dialog.getSkipCan() << 2 |
           dialog.getSkipConf() << 3 | dialog.getSkipDallas() << 4;
}
} // namespace

class TestSkipReadDataDialog : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void exec_data();
    void exec();
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
    QCOMPARE(dialog.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QStringList texts{dialog.findChild<QLabel *>(QStringLiteral("lTitle"))->text()};
    for (const QString &name : boxNames)
        texts << dialog.findChild<QCheckBox *>(name)->text().remove("[SkipReadDataDialog]");
    QCOMPARE(texts, QStringList({"[SkipReadDataDialog]Pomiń odczyt:", "Bluetooth", "Paliwo", "CAN",
                                 "Pozostałe", "Dallas"}));
}

void TestSkipReadDataDialog::exec_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("clicks"); // the boxes the user clicks
    QTest::addColumn<int>("button"); // NoButton: the window is closed

    for (int i = 0; i < boxNames.size(); ++i)
        QTest::newRow(qPrintable(boxNames[i]))
            << (1 << i) << (1 << (i + 1) % 5) << int(QDialogButtonBox::Ok);
    QTest::newRow("cancel") << 0b10101 << 0b11111 << int(QDialogButtonBox::Cancel);
    QTest::newRow("window closed") << 0b10101 << 0b11111 << int(QDialogButtonBox::NoButton);
}

// Every run shows the flags as they stand; only a confirmed run takes the boxes' values.
void TestSkipReadDataDialog::exec()
{
    QFETCH(int, flags);
    QFETCH(int, clicks);
    QFETCH(int, button);

    SkipReadDataDialog dialog(nullptr, flags & 1, flags & 2, flags & 4, flags & 8, flags & 16);
    for (int run = 0; run < 2; ++run) {
        const int before = getters(dialog);
        int seen = 0;
        ModalCatcher user([&](QWidget *modal) {
            for (int i = 0; i < boxNames.size(); ++i) {
                auto *box = modal->findChild<QCheckBox *>(boxNames[i]);
                seen |= box->isChecked() << i;
                // On the indicator: a box in the field column is wider than its text.
                if (clicks & 1 << i)
                    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
            }
            auto *box = modal->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
            if (button == QDialogButtonBox::NoButton)
                modal->close();
            else
                QTest::mouseClick(box->button(QDialogButtonBox::StandardButton(button)),
                                  Qt::LeftButton);
        });
        const bool accepted = button == QDialogButtonBox::Ok;
        QCOMPARE(dialog.exec(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
        QCOMPARE(seen, before);
        QCOMPARE(getters(dialog), accepted ? before ^ clicks : before);
    }
}

QTEST_MAIN(TestSkipReadDataDialog)
#include "tst_skipreaddatadialog.moc"
