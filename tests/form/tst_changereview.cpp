// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/form/changereview.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTreeView>
#include <QtTest>

namespace {
const char fourChanges[] = R"({"parameters": [
    {"ref": 10, "label": "Pojemność", "value": 400, "stored": 380},
    {"ref": 11, "value": 1},
    {"ref": 12, "page": "Ukryta", "label": "Adres", "value": "10.0.0.2", "stored": "10.0.0.1"},
    {"ref": 13, "type": 22, "label": "Alarm", "value": 1, "stored": 0},
    {"ref": 14, "type": 13, "capacity": 3, "label": "Numery", "value": ["1"], "stored": []}]})";

QString numbers(int from, int to, const char *separator)
{
    QStringList list;
    for (int n = from; n <= to; ++n)
        list.append(QString::number(n));
    return list.join(QLatin1String(separator));
}
} // namespace

class TestChangeReview : public TestCase
{
    Q_OBJECT

private slots:
    // One changed parameter 10 of each kind, as the review's row shows it.
    void valueTexts_data()
    {
        // parameter: the record's keys after "ref"
        // elements: the current value's, in the tool tip
        columns<QString, QString, QString, QString, QString>("parameter", "name", "stored",
                                                             "current", "elements");

        row("radio: label and text", R"("control": "radiobutton", "type": 4, "minimum": 2,
            "label": "Tryb", "text": "Aktywny", "value": 2, "stored": 1)",
            "Tryb: Aktywny", "niezaznaczone", "zaznaczone", "");
        // The rest have no label: the review names them by number.
        const auto unnamed = [](const char *tag, const QString &parameter, const char *stored,
                                const char *current, const QString &elements) {
            row(tag, parameter, "Parametr 10", stored, current, elements);
        };
        unnamed("int flag", R"("type": 22, "value": 1, "stored": 0)", "niezaznaczone", "zaznaczone",
                "");
        unnamed("options", R"("options": [["Wył.", "0"], ["Co minutę", "60"]], "value": "60",
                "stored": "0")",
                "Wył.", "Co minutę", "");
        unnamed("decimal", R"("value": 12.5, "stored": 12)", "12", "12.5", "");
        unnamed("list: added and removed",
                R"("type": 8, "capacity": 9, "value": [1, 3, 4, 5], "stored": [1, 2, 3])",
                "3 elementy", "4 elementy: 2 dodane, 1 usunięty", "1\n3\n4\n5");
        unnamed("list: from empty", R"("type": 8, "capacity": 9, "value": [7], "stored": [])",
                "0 elementów", "1 element: 1 dodany", "7");
        unnamed("list: names", R"("type": 24, "capacity": 3, "names": {"7": "Jan Kowalski"},
                "value": [7, 8], "stored": [8])",
                "1 element", "2 elementy: 1 dodany", "Jan Kowalski\n8");
        unnamed("list: order only",
                R"("type": 13, "capacity": 3, "value": ["b", "a"], "stored": ["a", "b"])",
                "2 elementy", "2 elementy: zmieniona kolejność", "b\na");
        unnamed("table: row added and changed", R"("columns": [1, 1], "capacity": 4,
                "value": [[1, "x"], [2, "b"], [3, "c"]], "stored": [[1, "a"], [2, "b"]])",
                "2 elementy", "3 elementy: 1 dodany, 1 zmieniony", "1, x\n2, b\n3, c");
        unnamed("list: plural forms past the teens",
                QStringLiteral(R"("type": 8, "capacity": 30, "value": [%1], "stored": [%2])")
                    .arg(numbers(1, 22, ","), numbers(1, 12, ",")),
                "12 elementów", "22 elementy: 10 dodanych", numbers(1, 22, "\n"));
        unnamed("networks", R"("type": 29, "capacity": 3, "value": [266243], "stored": [])",
                "0 elementów", "1 element: 1 dodany", networkText(266243));
    }

    void valueTexts()
    {
        QFETCH(QString, parameter);
        ParameterTable table;
        QVERIFY(table.loadJson(R"({"parameters": [{"ref": 10, )" + parameter.toUtf8() + "}]}"));

        ChangeReview review(&table);
        const QAbstractItemModel *rows = review.findChild<QTreeView *>()->model();
        QCOMPARE(rows->rowCount(), 1);
        QTEST(rows->index(0, 0).data().toString(), "name");
        QTEST(rows->index(0, 1).data().toString(), "stored");
        QTEST(rows->index(0, 2).data().toString(), "current");
        QTEST(rows->index(0, 2).data(Qt::ToolTipRole).toString(), "elements");
    }

    // The user leaves changes out with Space and confirms with Enter (or cancels with Escape):
    // exactly the left-out ones go back to their stored values, the rest are chosen.
    void leaveOut_data()
    {
        // uncheck: rows toggled with Space
        columns<QList<int>, int, QList<int>, QList<int>, QString>("uncheck", "key", "chosen",
                                                                  "reverted", "summary");

        row("all kept", QList<int>{}, int(Qt::Key_Return), QList<int>{10, 12, 13, 14}, QList<int>{},
            "Zmienione parametry: 4, wybrane: 4");
        row("two left out", QList<int>{1, 3}, int(Qt::Key_Enter), QList<int>{10, 13},
            QList<int>{12, 14}, "Zmienione parametry: 4, wybrane: 2");
        row("cancelled", QList<int>{0}, int(Qt::Key_Escape), QList<int>{}, QList<int>{},
            "Zmienione parametry: 4, wybrane: 3");
    }

    void leaveOut()
    {
        QFETCH(QList<int>, uncheck);
        QFETCH(int, key);
        QFETCH(QList<int>, reverted);
        ParameterTable table;
        QVERIFY(table.loadJson(fourChanges));
        const QList<int> refs = table.parameters();
        QVariantList before;
        for (int ref : refs)
            before.append(table.value(ref));

        ChangeReview review(&table);
        auto *view = review.findChild<QTreeView *>();
        QString summary;
        ModalCatcher catcher([&](QWidget *modal) {
            for (int row : uncheck) {
                view->setCurrentIndex(view->model()->index(row, 2)); // any column of the row
                QTest::keyClick(view, Qt::Key_Space);
            }
            summary = modal->findChild<QLabel *>(QStringLiteral("summary"))->text();
            QTest::keyClick(view, Qt::Key(key));
        });
        const int result = review.exec();
        QCOMPARE(result == QDialog::Accepted, key != Qt::Key_Escape);
        QTEST(summary, "summary");
        if (result == QDialog::Accepted)
            QTEST(review.chosen(), "chosen");
        for (int i = 0; i < refs.size(); ++i) {
            const QVariant expected =
                reverted.contains(refs[i]) ? table.storedValue(refs[i]) : before[i];
            QVERIFY2(ParameterTable::sameValue(table.value(refs[i]), expected),
                     qPrintable(QString::number(refs[i])));
        }
    }

    // Over a host's own table the dialog names the left-out changes and writes nothing.
    void hostTable()
    {
        TestHost host;
        host.add(20, 0, 5);
        host.add(21, 0, QStringLiteral("b"));
        ChangeReview review(&host, {20, 21},
                            [](int ref) { return ref == 20 ? QVariant(4) : QVariant(); });
        auto *view = review.findChild<QTreeView *>();
        QCOMPARE(view->model()->index(0, 1).data().toString(), QStringLiteral("4"));
        QTest::keyClick(view, Qt::Key_Space);
        review.accept();
        QCOMPARE(review.leftOut(), QList<int>{20});
        QCOMPARE(review.chosen(), QList<int>{21});
        QVERIFY(host.writes.isEmpty());
    }

    // Closing asks only while something really differs; the answer decides whether the
    // window closes and what becomes of the changes.
    void question_data()
    {
        // takenBack: the edit was set back to the stored value
        // saves: what the host's save returns
        columns<bool, int, bool, bool, bool, int>("takenBack", "answer", "saves", "asked", "closed",
                                                  "valueAfter");

        row("edit taken back", true, 0, true, false, true, 380);
        row("save succeeds", false, int(QMessageBox::Save), true, true, true, 400);
        row("save fails", false, int(QMessageBox::Save), false, true, false, 400);
        row("discard", false, int(QMessageBox::Discard), true, true, true, 380);
        row("cancel", false, int(QMessageBox::Cancel), true, true, false, 400);
    }

    void question()
    {
        QFETCH(bool, takenBack);
        QFETCH(int, answer);
        QFETCH(bool, saves);
        ParameterTable table;
        QVERIFY(table.loadJson(R"({"parameters": [{"ref": 10, "label": "Inna", "value": 380}]})"));
        QWidget window;
        // The label the bound control registered names the parameter before the presentation.
        QLabel label(QStringLiteral("&Pojemność:"), &window);
        table.object(10).label = &label;
        table.setValue(10, 400);
        if (takenBack)
            table.setValue(10, 380);
        window.show();
        int saveCalls = 0;
        ChangeReview::askBeforeClosing(&window, &table, [&] {
            ++saveCalls;
            return saves;
        });
        QString details;
        ModalCatcher catcher([&](QWidget *modal) {
            auto *box = qobject_cast<QMessageBox *>(modal);
            details = box->informativeText();
            if (QAbstractButton *button = box->button(QMessageBox::StandardButton(answer)))
                button->click();
            else
                box->reject();
        });
        QTEST(window.close(), "closed");
        QTEST(!catcher.seen.isEmpty(), "asked");
        if (!catcher.seen.isEmpty()) {
            QCOMPARE(catcher.seen.first().title, QStringLiteral("Niezapisane zmiany"));
            QCOMPARE(details, QStringLiteral("Pojemność: 380 → 400"));
        }
        QCOMPARE(saveCalls, answer == QMessageBox::Save ? 1 : 0);
        QTEST(table.value(10).toInt(), "valueAfter");
    }
};

QTEST_MAIN(TestChangeReview)
#include "tst_changereview.moc"
