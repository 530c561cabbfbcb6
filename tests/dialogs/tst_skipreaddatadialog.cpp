// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {
// Bit i stands for box i, in the order of the constructor's flags and of the getters.
const QStringList boxNames{"cbBt", "cbFuel", "cbCan", "cbConf", "cbDallas"};

int getters(SkipReadDataDialog &dialog)
{
    return dialog.getSkipBt() | dialog.getSkipFuel() << 1 | dialog.getSkipCan() << 2 |
           dialog.getSkipConf() << 3 | dialog.getSkipDallas() << 4;
}
} // namespace

class TestSkipReadDataDialog : public TestCase
{
    Q_OBJECT

private slots:
    void exec_data()
    {
        // clicks: the boxes the user clicks
        columns<int, int, bool>("flags", "clicks", "ok");

        for (int i = 0; i < boxNames.size(); ++i)
            row(qPrintable(boxNames[i]), (1 << i), (1 << (i + 1) % 5), true);
        row("cancel", 0b10101, 0b11111, false);
    }

    // Every run shows the flags as they stand; only a confirmed run takes the boxes' values.
    void exec()
    {
        QFETCH(int, flags);
        QFETCH(int, clicks);
        QFETCH(bool, ok);

        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        SkipReadDataDialog dialog(nullptr, flags & 1, flags & 2, flags & 4, flags & 8, flags & 16);
        QCoreApplication::removeTranslator(&translator);
        for (int run = 0; run < 2; ++run) {
            QStringList texts;
            int seen = 0;
            ModalCatcher user([&](QWidget *modal) {
                texts << modal->windowTitle()
                      << modal->findChild<QLabel *>(QStringLiteral("lTitle"))->text();
                for (int i = 0; i < boxNames.size(); ++i) {
                    auto *box = modal->findChild<QCheckBox *>(boxNames[i]);
                    texts << box->text();
                    seen |= box->isChecked() << i;
                    // On the indicator: a box in the field column is wider than its text.
                    if (clicks & 1 << i)
                        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
                }
                auto *box = modal->findChild<QDialogButtonBox *>();
                QTest::mouseClick(box->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                                  Qt::LeftButton);
            });
            const int before = getters(dialog);
            QCOMPARE(dialog.exec(), int(ok));
            QCOMPARE(seen, before);
            QCOMPARE(getters(dialog), ok ? before ^ clicks : before);
            QCOMPARE(texts.filter(QStringLiteral("[SkipReadDataDialog]")).size(), 7);
            QCOMPARE(
                texts.join('|').remove(QStringLiteral("[SkipReadDataDialog]")),
                QStringLiteral(
                    "Odczyt - pomijane dane|Pomiń odczyt:|Bluetooth|Paliwo|CAN|Pozostałe|Dallas"));
        }
    }
};

QTEST_MAIN(TestSkipReadDataDialog)
#include "tst_skipreaddatadialog.moc"
