// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// A monkey test: a form holding every kind of bound control over a host that answers at
// random, driven by random operations (binding, refreshes, gates, licence levels, key and
// mouse edits, collection adds, removes and in-place edits, table rebuilds, widgets the host
// deletes). Seeded and bounded by an operation count, so a run replays exactly:
//   TELECFG_MONKEY_SEED=<number or "random">  TELECFG_MONKEY_OPS=<count>
// Every kind is driven alike, through the protocol and the kind's own operations.
#include "telecfg/collections/cfglisteditor.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/dialogs/gui.h"
#include "tests/support/anycontrol.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QtTest>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <memory>
#include <random>
#include <vector>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {
std::mt19937 rng;

int pick(int count)
{
    return int(rng() % quint32(count));
}
bool chance(int percent)
{
    return pick(100) < percent;
}
template <class T, size_t N> const T &oneOf(const T (&items)[N])
{
    return items[pick(int(N))];
}

QString randomText()
{
    static const QString alphabet = QStringLiteral("0123456789-.,+ abzŻąé@#\t");
    QString text;
    for (int i = pick(8); i > 0; --i)
        text += alphabet.at(pick(alphabet.size()));
    return text;
}

QByteArray randomBytes()
{
    QByteArray bytes;
    for (int i = pick(6); i > 0; --i)
        bytes += char(chance(20) ? 0 : '0' + pick(75));
    return bytes;
}

quint32 randomNumber()
{
    static const quint32 edges[] = {0, 1, 2, 5, 99, 100, 0x7fffffffu, 0x80000000u, 0xffffffffu};
    return chance(70) ? quint32(pick(30)) : oneOf(edges);
}

template <class T, class Make> QVariant vectorOf(Make make, int places = -1)
{
    QVector<T> vector;
    for (int i = places < 0 ? pick(7) : places; i > 0; --i)
        vector.append(make());
    return QVariant::fromValue(vector);
}

template <class Named> QVariant namesOf()
{
    QList<Named> names;
    for (int i = pick(4); i > 0; --i)
        names.append({decltype(Named::value)(pick(10)), randomText()});
    return QVariant::fromValue(names);
}

// A value of any type a host might hold, right or wrong for the record it goes into, short
// and malformed collections included.
QVariant randomValue()
{
    static const std::function<QVariant()> makers[] = {
        [] { return QVariant(); },
        [] { return QVariant(randomNumber()); },
        [] { return QVariant(-pick(100)); },
        [] { return QVariant(QString::number(qint64(qint32(randomNumber())) - pick(50))); },
        [] { return QVariant(randomText()); },
        [] { return QVariant(double(pick(1000)) / 8.0 - 20.0); },
        [] { return QVariant(chance(50)); },
        [] { return vectorOf<quint16>([] { return quint16(rng()); }); },
        [] { return vectorOf<quint32>(randomNumber); },
        [] { return vectorOf<QString>(randomText); },
        [] { return vectorOf<QByteArray>(randomBytes); },
        [] {
            return vectorOf<QVector<QByteArray>>([] {
                return qvariant_cast<QVector<QByteArray>>(vectorOf<QByteArray>(randomBytes));
            });
        },
        [] {
            return QVariant::fromValue(QList<uint>{uint(pick(4)), uint(pick(4))});
        },
        [] {
            return QVariant(QStringList{randomText(), randomText()});
        },
        [] { return QVariant(randomBytes()); },
        namesOf<NamedUShort>,
        namesOf<NamedUInt>,
    };
    return oneOf(makers)();
}

// A value of the type the record's type asks for, of the record's capacity or shorter.
QVariant fittingValue(int type, int capacity)
{
    const int places = qMax(0, capacity - (chance(20) ? 1 : 0));
    const auto small = [] { return pick(3); };
    const auto is = [type](std::initializer_list<int> types) {
        return std::find(types.begin(), types.end(), type) != types.end();
    };
    if (type == 8)
        return vectorOf<quint16>(small, places);
    if (is({24, 29}))
        return vectorOf<quint32>(small, places);
    if (type == 20)
        return vectorOf<QByteArray>(randomBytes, places);
    if (type == 13)
        return vectorOf<QString>(randomText, places);
    if (type == 0)
        return QVariant::fromValue(ColumnVectors(2, QVector<QByteArray>(places)));
    if (is({3, 15, 18, 30}))
        return QString::number(pick(400) / 4.0);
    if (is({10, 19}))
        return QStringLiteral("10.0.0.%1").arg(pick(300));
    return is({12, 16, 17}) ? QVariant(randomText()) : QVariant(uint(pick(20)));
}

QMap<int, int> randomVersions()
{
    QMap<int, int> versions;
    for (int i = pick(3); i > 0; --i)
        versions[pick(3)] = pick(25) - 2;
    return versions;
}

// A record of any type, mostly of one the control kind at `home` (into anyControlKinds) edits.
MainConfigObject randomRecord(int home)
{
    static const int types[] = {0,  1,  2,  3,  4,  6,  7,  8,  10, 11, 12, 13, 15,
                                16, 17, 18, 19, 20, 21, 22, 24, 28, 29, 30, 99};
    static const QVector<QVector<int>> homeTypes = {{1, 22},
                                                    {1, 4},
                                                    {1, 3, 4, 10, 12, 16, 17, 21, 30},
                                                    {1, 21},
                                                    {3, 21},
                                                    {4},
                                                    {8, 24, 29, 20, 13},
                                                    {0},
                                                    {8, 24, 29, 20, 13}};
    MainConfigObject object;
    const QVector<int> &own = homeTypes.at(qBound(0, home, homeTypes.size() - 1));
    object.type = chance(70) ? own.at(pick(own.size())) : oneOf(types);
    object.value = randomValue();
    object.minimum = chance(50) ? QVariant(pick(10) - 5) : randomValue();
    object.maximum = chance(50) ? QVariant(pick(100)) : randomValue();
    for (int i = pick(5); i > 0; --i)
        object.options[pick(7) - 1] = {randomText(), QString::number(pick(6))};
    object.minVersions = randomVersions();
    object.maxVersions = randomVersions();
    object.versionKey = pick(3);
    for (int i = pick(3); i > 0; --i)
        object.hardwareIds.append(pick(4));
    object.hidden = chance(10);
    object.licenceGate = pick(4);
    object.capacity = pick(8) - 1;
    object.step = pick(7) - 1;
    object.partialIsChecked = chance(50);
    object.columnListA = chance(80) ? QVariant::fromValue(QList<uint>{0, 1}) : randomValue();
    object.columnListB = chance(80) ? object.columnListA : randomValue();
    for (int i = pick(3); i > 0; --i)
        object.columnTitles.append(randomText());
    object.valueNames = randomValue();
    object.toolTip = randomText();
    if (chance(60))
        object.value = fittingValue(object.type, object.capacity);
    return object;
}

// A parameter table whose every answer is drawn from the run's generator.
// The test host's records, with every answer but the value drawn from the generator.
class RandomHost : public TestHost
{
public:
    void setValue(int ref, QVariant v) override
    {
        if (chance(85))
            records[ref].value = v;
        if (rebuildOnWrite)
            rebuild();
    }

    bool isValid(int) override { return chance(80); }
    bool isModified(int) override { return chance(30); }
    bool matchesStored(int, QVariant) override { return chance(50); }
    QList<int> invalidItems(int) override { return places(); }
    QList<int> modifiedItems(int) override { return places(); }
    QString nameOfUInt(quint32, QList<NamedUInt>) override { return randomText(); }
    QString nameOfUShort(quint16, QList<NamedUShort>) override { return randomText(); }
    quint16 ushortOfName(QString, QList<NamedUShort>) override { return quint16(rng()); }
    quint32 uintOfName(QString, QList<NamedUInt>) override { return randomNumber(); }
    bool isStoredItem(int, QVariant) override { return chance(50); }

    bool rebuildOnWrite = false;

private:
    static QList<int> places()
    {
        QList<int> list;
        for (int i = pick(3); i > 0; --i)
            list.append(pick(7) - 1);
        return list;
    }
};

const int firstRef = 10;

// The latest operations (number and control kind), told when the run fails, crashes or a
// sanitizer stops it.
struct Done
{
    int op;
    const char *kind;
};
Done done[20];
unsigned doneCount = 0;
quint32 runSeed = 0;
void tellLastOperations()
{
    std::fprintf(stderr,
                 "monkey: seed %u; the last operations (number on kind), oldest first:", runSeed);
    for (unsigned i = doneCount > 20 ? doneCount - 20 : 0; i < doneCount; ++i)
        std::fprintf(stderr, " %d on %s,", done[i % 20].op, done[i % 20].kind);
    std::fprintf(stderr, "\n");
}
void tellAndDie(int signal)
{
    tellLastOperations();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// One control on the form with the label and related widget the host gave it.
struct Placed
{
    QString kind;
    std::unique_ptr<AnyControl> control;
    QPointer<QLabel> label, related;
    int ref = 0; // bound to
};
} // namespace

class TestMonkey : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        allowListConnectionWarning();
        registerCollectionTypes();
    }

    void run()
    {
        const QByteArray seedText = qgetenv("TELECFG_MONKEY_SEED");
        const quint32 seed = seedText == "random" ? std::random_device()()
                             : seedText.isEmpty() ? 20261124u
                                                  : seedText.toUInt();
        bool counted = false;
        int ops = qEnvironmentVariableIntValue("TELECFG_MONKEY_OPS", &counted);
        if (!counted)
            ops = 3000;
        std::printf("monkey: seed %u, %d operations; replay with TELECFG_MONKEY_SEED=%u\n", seed,
                    ops, seed);
        std::fflush(stdout);
        rng.seed(seed);
        runSeed = seed;
        for (int signal : {SIGABRT, SIGSEGV, SIGFPE, SIGBUS})
            std::signal(signal, tellAndDie);
#ifdef __SANITIZE_ADDRESS__
        __sanitizer_set_death_callback(tellLastOperations);
#endif

        ModalCatcher catcher; // refusals are answered with OK
        for (const QString &kind : anyControlKinds())
            placed.push_back(Placed{kind, {}, {}, {}, 0});
        host.records[2].value = 10u;
        for (int ref = firstRef; ref < firstRef + int(placed.size()); ++ref)
            host.records[ref] = randomRecord(ref - firstRef);
        newForm();

        // The operations run from the event loop, as a host's code does: an object deleted later
        // then goes when the host's code returns, not inside a message box the library opens.
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [this, &loop, ops] {
            // Weights of the operations above, in order.
            static const int weights[] = {8, 14, 12, 3, 14, 8, 10, 6, 3, 3, 2, 16};
            std::discrete_distribution<int> choose(std::begin(weights), std::end(weights));
            for (int i = 0; i < ops && !QTest::currentTestFailed(); ++i) {
                operate(choose(rng));
                if (QWidget *popup = QApplication::activePopupWidget())
                    popup->close();
                // What the host's event loop would deliver before the next operation (timers left
                // out, so a run replays exactly).
                QCoreApplication::sendPostedEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            loop.quit();
        });
        loop.exec();
        if (QTest::currentTestFailed())
            tellLastOperations();
        delete form.data();
        placed.clear();
    }

    void cleanup()
    {
        setGUILicenseLevel(0);
    }

private:
    void operate(int op)
    {
        Placed &slot = placed[pick(int(placed.size()))];
        AnyControl &control = *slot.control;
        QWidget *self = control.widget;
        done[doneCount++ % 20] = {op, control.kind->metaObject->className()};
        switch (op) {
        case 0:
            bind(slot);
            break;
        case 1: {
            static const int ids[] = {0, 0, 1, 2, 3, 7};
            control.updateControl(oneOf(ids));
            break;
        }
        case 2: {
            const int which = pick(4);
            const bool on = chance(which < 2 ? 80 : 20); // mostly open, shown, no error
            const std::array<void (AnyControl::*)(bool), 4> gates{
                &AnyControl::setEnabled, &AnyControl::updateEnableState, &AnyControl::setHidden,
                &AnyControl::setError};
            (control.*gates[which])(on);
            break;
        }
        case 3:
            setGUILicenseLevel(pick(4));
            break;
        case 4: {
            static const Qt::Key keys[] = {
                Qt::Key_0,      Qt::Key_1,     Qt::Key_5,         Qt::Key_9,      Qt::Key_Minus,
                Qt::Key_Period, Qt::Key_Comma, Qt::Key_Up,        Qt::Key_Down,   Qt::Key_PageUp,
                Qt::Key_End,    Qt::Key_Home,  Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Space,
                Qt::Key_A,      Qt::Key_F2,    Qt::Key_Return,    Qt::Key_Escape};
            QTest::keyClick(self, oneOf(keys));
            break;
        }
        case 5: {
            const QPoint at(pick(qMax(1, self->width())), pick(qMax(1, self->height())));
            auto *view = qobject_cast<QAbstractItemView *>(self);
            QWidget *target = view ? view->viewport() : self;
            if (chance(30))
                QTest::mouseDClick(target, Qt::LeftButton, {}, at);
            else
                QTest::mouseClick(target, Qt::LeftButton, {}, at);
            break;
        }
        case 6:
            if (auto *editor = qobject_cast<CfgListEditor *>(self))
                itemViewOp(editor->list());
            else if (auto *view = qobject_cast<QAbstractItemView *>(self))
                itemViewOp(view);
            break;
        case 7: {
            const int ref = chance(10) ? 2 : anyRef();
            host.records[ref] = randomRecord(ref - firstRef);
            if (ref == 2 && chance(70))
                host.records[2].value = uint(pick(25));
            break;
        }
        case 8:
            host.rebuild();
            host.rebuildOnWrite = chance(30);
            break;
        case 9:
            delete (chance(50) ? slot.label : slot.related).data();
            break;
        case 10:
            if (chance(5)) {
                form->deleteLater();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                newForm();
            } else {
                self->deleteLater();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                place(slot);
                bind(slot);
            }
            break;
        default: {
            // The kind's own operations, the user edit among them, with a value that fits its
            // bound record or any other.
            const QVariant value =
                chance(50)   ? QVariant(uint(pick(12)))
                : chance(50) ? QVariant(QStringList{QString::number(pick(9)), randomText()})
                             : randomValue();
            control.operate(pick(control.operationCount()), chance(80) ? slot.ref : anyRef(),
                            value);
        }
        }
    }

    // A fresh form with every kind placed and bound on it.
    void newForm()
    {
        form = new QWidget;
        form->resize(200, 40 * int(placed.size()));
        form->show();
        for (Placed &slot : placed) {
            place(slot);
            bind(slot);
        }
    }

    void place(Placed &slot)
    {
        slot.control = std::make_unique<AnyControl>(slot.kind, form);
        slot.control->widget->setGeometry(10, 10 + 40 * int(&slot - placed.data()), 160, 36);
        slot.control->widget->show();
    }

    void bind(Placed &slot)
    {
        const int home = firstRef + int(&slot - placed.data());
        slot.ref = chance(5) ? 2 : chance(70) ? home : anyRef();
        for (QPointer<QLabel> *widget : {&slot.label, &slot.related})
            if (!*widget && chance(50))
                *widget = new QLabel(form);
        QList<QWidget *> related{slot.related};
        if (chance(20))
            related.append(nullptr);
        slot.control->setReference(chance(5) ? nullptr : &host, slot.ref,
                                   chance(20) ? nullptr : slot.label.data(), related);
    }

    // Selects items at random, or edits one in place: an editor a key or a double click left open
    // is used as it is; otherwise one opens where the user can double-click into (an enabled,
    // editable item of an enabled view).
    void itemViewOp(QAbstractItemView *view)
    {
        const QAbstractItemModel *model = view->model();
        if (chance(40)) {
            for (int row = 0; row < model->rowCount(); ++row)
                for (int column = 0; column < model->columnCount(); ++column)
                    view->selectionModel()->select(model->index(row, column),
                                                   chance(40) ? QItemSelectionModel::Select
                                                              : QItemSelectionModel::Deselect);
            return;
        }
        auto *editor = view->viewport()->findChild<QLineEdit *>();
        const QModelIndex index =
            model->index(pick(qMax(1, model->rowCount())), pick(qMax(1, model->columnCount())));
        const Qt::ItemFlags editable = Qt::ItemIsEditable | Qt::ItemIsEnabled;
        if (!editor && index.isValid() && (index.flags() & editable) == editable &&
            view->isEnabled()) {
            view->setCurrentIndex(index);
            view->edit(index);
            editor = view->viewport()->findChild<QLineEdit *>();
        }
        if (!editor)
            return;
        editor->setText(chance(30) ? QString::number(pick(10)) : randomText());
        QTest::keyClick(editor, chance(85) ? Qt::Key_Return : Qt::Key_Escape);
    }

    int anyRef() const
    {
        return firstRef + pick(int(placed.size()));
    }

    RandomHost host;
    QPointer<QWidget> form;
    std::vector<Placed> placed;
};

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
