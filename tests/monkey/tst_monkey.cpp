// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// A monkey test: a form holding every kind of bound control over a host that answers at
// random, driven by random operations (binding, refreshes, gates, licence levels, key and
// mouse edits, collection adds, removes and in-place edits, table rebuilds, widgets the host
// deletes). Seeded and bounded by an operation count, so a run replays exactly:
//   TELECFG_MONKEY_SEED=<number or "random">  TELECFG_MONKEY_OPS=<count>
// A failure or crash prints the seed and the last operations.
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/dialogs/gui.h"
#include "tests/support/anycontrol.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QtTest>
#include <csignal>
#include <cstdio>
#include <deque>
#include <random>
#include <string>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define MONKEY_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MONKEY_SANITIZED 1
#endif
#endif
#ifdef MONKEY_SANITIZED
#include <sanitizer/common_interface_defs.h>
#endif

namespace {
using Rng = std::mt19937;

// What a crash report prints: the run's seed and its last operations.
quint32 runSeed = 0;
int runOps = 0;
std::deque<std::string> recent;

void printRecent()
{
    std::fprintf(stderr,
                 "monkey: seed %u; replay with TELECFG_MONKEY_SEED=%u TELECFG_MONKEY_OPS=%d\n",
                 runSeed, runSeed, runOps);
    std::fprintf(stderr, "monkey: last operations, oldest first:\n");
    for (const std::string &op : recent)
        std::fprintf(stderr, "  %s\n", op.c_str());
    std::fflush(stderr);
}

extern "C" void onFatalSignal(int signal)
{
    printRecent();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

int pick(Rng &rng, int count)
{
    return int(rng() % quint32(count));
}
bool chance(Rng &rng, int percent)
{
    return pick(rng, 100) < percent;
}

QString randomText(Rng &rng)
{
    static const QString alphabet = QStringLiteral("0123456789-.,+ abzŻąé@#\t");
    QString text;
    for (int i = pick(rng, 8); i > 0; --i)
        text += alphabet.at(pick(rng, alphabet.size()));
    return text;
}

QByteArray randomBytes(Rng &rng)
{
    QByteArray bytes;
    for (int i = pick(rng, 6); i > 0; --i)
        bytes += char(chance(rng, 20) ? 0 : '0' + pick(rng, 75));
    return bytes;
}

template <class T, class Make> QVector<T> randomVector(Rng &rng, Make make)
{
    QVector<T> vector;
    for (int i = pick(rng, 7); i > 0; --i)
        vector.append(make());
    return vector;
}

quint32 randomNumber(Rng &rng)
{
    static const quint32 edges[] = {0, 1, 2, 5, 99, 100, 0x7fffffffu, 0x80000000u, 0xffffffffu};
    return chance(rng, 70) ? quint32(pick(rng, 30)) : edges[pick(rng, int(std::size(edges)))];
}

// A value of any type a host might hold, right or wrong for the record it goes into, short
// and malformed collections included.
QVariant randomValue(Rng &rng)
{
    switch (pick(rng, 17)) {
    case 0:
        return QVariant();
    case 1:
        return randomNumber(rng);
    case 2:
        return -pick(rng, 100);
    case 3:
        return QString::number(qint64(qint32(randomNumber(rng))) - pick(rng, 50));
    case 4:
        return randomText(rng);
    case 5:
        return double(pick(rng, 1000)) / 8.0 - 20.0;
    case 6:
        return chance(rng, 50);
    case 7:
        return QVariant::fromValue(randomVector<quint16>(rng, [&] { return quint16(rng()); }));
    case 8:
        return QVariant::fromValue(randomVector<quint32>(rng, [&] { return randomNumber(rng); }));
    case 9:
        return QVariant::fromValue(randomVector<QString>(rng, [&] { return randomText(rng); }));
    case 10:
        return QVariant::fromValue(randomVector<QByteArray>(rng, [&] { return randomBytes(rng); }));
    case 11:
        return QVariant::fromValue(randomVector<QVector<QByteArray>>(
            rng, [&] { return randomVector<QByteArray>(rng, [&] { return randomBytes(rng); }); }));
    case 12:
        return QVariant::fromValue(QList<uint>{uint(pick(rng, 4)), uint(pick(rng, 4))});
    case 13:
        return QStringList{randomText(rng), randomText(rng)};
    case 14:
        return randomBytes(rng);
    case 15: {
        QList<NamedUShort> names;
        for (int i = pick(rng, 4); i > 0; --i)
            names.append({quint16(pick(rng, 10)), randomText(rng)});
        return QVariant::fromValue(names);
    }
    default: {
        QList<NamedUInt> names;
        for (int i = pick(rng, 4); i > 0; --i)
            names.append({quint32(pick(rng, 10)), randomText(rng)});
        return QVariant::fromValue(names);
    }
    }
}

QMap<int, int> randomVersions(Rng &rng)
{
    QMap<int, int> versions;
    for (int i = pick(rng, 3); i > 0; --i)
        versions[pick(rng, 3)] = pick(rng, 25) - 2;
    return versions;
}

// A value of the type the record's type asks for, of the record's capacity or shorter.
QVariant fittingValue(Rng &rng, int type, int capacity)
{
    const int places = qMax(0, capacity - (chance(rng, 20) ? 1 : 0));
    switch (type) {
    case 8:
        return QVariant::fromValue(QVector<quint16>(places, quint16(pick(rng, 3))));
    case 24:
    case 29:
        return QVariant::fromValue(QVector<quint32>(places, quint32(pick(rng, 3))));
    case 20:
        return QVariant::fromValue(QVector<QByteArray>(places, randomBytes(rng)));
    case 13:
        return QVariant::fromValue(QVector<QString>(places, randomText(rng)));
    case 0:
        return QVariant::fromValue(ColumnVectors(2, QVector<QByteArray>(places)));
    case 3:
    case 15:
    case 18:
    case 30:
        return QString::number(pick(rng, 400) / 4.0);
    case 10:
    case 19:
        return QStringLiteral("10.0.0.%1").arg(pick(rng, 300));
    case 12:
    case 16:
    case 17:
        return randomText(rng);
    default:
        return uint(pick(rng, 20));
    }
}

// A record of any type, mostly of one the control kind at `home` (into anyControlKinds) edits.
MainConfigObject randomRecord(Rng &rng, int home)
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
                                                    {0}};
    MainConfigObject object;
    const QVector<int> &own = homeTypes.at(qBound(0, home, homeTypes.size() - 1));
    object.type =
        chance(rng, 70) ? own.at(pick(rng, own.size())) : types[pick(rng, int(std::size(types)))];
    object.value = randomValue(rng);
    object.minimum = chance(rng, 50) ? QVariant(pick(rng, 10) - 5) : randomValue(rng);
    object.maximum = chance(rng, 50) ? QVariant(pick(rng, 100)) : randomValue(rng);
    for (int i = pick(rng, 5); i > 0; --i)
        object.options[pick(rng, 7) - 1] = {randomText(rng), QString::number(pick(rng, 6))};
    object.minVersions = randomVersions(rng);
    object.maxVersions = randomVersions(rng);
    object.versionKey = pick(rng, 3);
    for (int i = pick(rng, 3); i > 0; --i)
        object.hardwareIds.append(pick(rng, 4));
    object.hidden = chance(rng, 10);
    object.licenceGate = pick(rng, 4);
    object.capacity = pick(rng, 8) - 1;
    object.step = pick(rng, 7) - 1;
    object.partialIsChecked = chance(rng, 50);
    object.columnListA =
        chance(rng, 80) ? QVariant::fromValue(QList<uint>{0, 1}) : randomValue(rng);
    object.columnListB = chance(rng, 80) ? object.columnListA : randomValue(rng);
    for (int i = pick(rng, 3); i > 0; --i)
        object.columnTitles.append(randomText(rng));
    object.valueNames = randomValue(rng);
    object.toolTip = randomText(rng);
    if (chance(rng, 60))
        object.value = fittingValue(rng, object.type, object.capacity);
    return object;
}

// A parameter table whose every answer is drawn from the run's generator.
class RandomHost : public MainConfigIFace
{
public:
    explicit RandomHost(Rng &generator) : rng(generator) {}

    MainConfigObject &object(int ref) override { return records[ref]; }
    QVariant value(int ref) override { return records[ref].value; }
    void setValue(int ref, QVariant v) override
    {
        ++writes;
        if (chance(rng, 85))
            records[ref].value = v;
        if (rebuildOnWrite)
            rebuild();
    }
    bool isValid(int) override { return chance(rng, 80); }
    bool isModified(int) override { return chance(rng, 30); }
    bool matchesStored(int, QVariant) override { return chance(rng, 50); }
    QList<int> invalidItems(int) override { return places(); }
    QList<int> modifiedItems(int) override { return places(); }
    QString nameOfUInt(quint32, QList<NamedUInt>) override { return randomText(rng); }
    QString nameOfUShort(quint16, QList<NamedUShort>) override { return randomText(rng); }
    quint16 ushortOfName(QString, QList<NamedUShort>) override { return quint16(rng()); }
    quint32 uintOfName(QString, QList<NamedUInt>) override { return randomNumber(rng); }
    bool isStoredItem(int, QVariant) override { return chance(rng, 50); }

    // Every record replaced by a copy: references into the old ones point at freed memory.
    void rebuild()
    {
        QMap<int, MainConfigObject> fresh;
        for (auto it = records.cbegin(); it != records.cend(); ++it)
            fresh.insert(it.key(), MainConfigObject(it.value()));
        records.swap(fresh);
    }

    QMap<int, MainConfigObject> records;
    bool rebuildOnWrite = false;
    int writes = 0;

private:
    QList<int> places()
    {
        QList<int> list;
        for (int i = pick(rng, 3); i > 0; --i)
            list.append(pick(rng, 7) - 1);
        return list;
    }
    Rng &rng;
};

const int firstRef = 10;
const int refCount = 8;

// One control on the form with the label and related widget the host gave it.
struct Placed
{
    QString kind;
    AnyControl control;
    QPointer<QWidget> self;
    QPointer<QLabel> label, related;
    int ref = 0; // bound to
};
} // namespace

class TestMonkey : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void run();
    void cleanup() { setGUILicenseLevel(0); }

private:
    void drive();
    void operate(int op);
    void place(Placed &slot);
    void bind(Placed &slot);
    void note(const QString &text);
    void collectionOp(Placed &slot);
    void editInPlace(QAbstractItemView *view, const QModelIndex &index);

    Rng rng;
    std::unique_ptr<RandomHost> host;
    QPointer<QWidget> form;
    std::vector<Placed> placed;
};

void TestMonkey::initTestCase()
{
    allowListConnectionWarning();
    registerCollectionTypes();
#ifdef MONKEY_SANITIZED
    // The sanitizer reports the fault itself, then tells the seed through this.
    __sanitizer_set_death_callback(printRecent);
#else
    for (int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL})
        std::signal(signal, onFatalSignal);
#endif
}

void TestMonkey::note(const QString &text)
{
    recent.push_back(text.toStdString());
    if (recent.size() > 60)
        recent.pop_front();
}

void TestMonkey::place(Placed &slot)
{
    slot.control = makeAnyControl(slot.kind);
    slot.self = slot.control.widget.get();
    slot.control.widget.release()->setParent(form); // the form owns it
    slot.self->setGeometry(10, 10 + 40 * int(&slot - placed.data()), 160, 36);
    slot.self->show();
}

void TestMonkey::bind(Placed &slot)
{
    const int home = firstRef + int(&slot - placed.data());
    const int ref = chance(rng, 5) ? 2 : chance(rng, 70) ? home : firstRef + pick(rng, refCount);
    slot.ref = ref;
    for (QPointer<QLabel> *widget : {&slot.label, &slot.related})
        if (!*widget && chance(rng, 50))
            *widget = new QLabel(form);
    QList<QWidget *> related{slot.related};
    if (chance(rng, 20))
        related.append(nullptr);
    const bool noTable = chance(rng, 5);
    note(QStringLiteral("bind %1 to %2%3")
             .arg(slot.kind)
             .arg(ref)
             .arg(noTable ? " (no table)" : ""));
    slot.control.setReference(noTable ? nullptr : host.get(), ref,
                              chance(rng, 20) ? nullptr : slot.label.data(), related);
}

void TestMonkey::editInPlace(QAbstractItemView *view, const QModelIndex &index)
{
    // An editor a key or a double click left open is used as it is; otherwise one opens
    // where the user can double-click into: an enabled, editable item of an enabled view.
    auto *editor = view->viewport()->findChild<QLineEdit *>();
    const Qt::ItemFlags editable = Qt::ItemIsEditable | Qt::ItemIsEnabled;
    if (!editor && index.isValid() && (index.flags() & editable) == editable && view->isEnabled()) {
        view->setCurrentIndex(index);
        view->edit(index);
        editor = view->viewport()->findChild<QLineEdit *>();
    }
    if (!editor)
        return;
    const QString text = chance(rng, 30) ? QString::number(pick(rng, 10)) : randomText(rng);
    note(QStringLiteral("  edit in place to \"%1\"").arg(text));
    editor->setText(text);
    QTest::keyClick(editor, chance(rng, 85) ? Qt::Key_Return : Qt::Key_Escape);
}

void TestMonkey::collectionOp(Placed &slot)
{
    const int ref = chance(rng, 80) ? slot.ref : firstRef + pick(rng, refCount);
    if (auto *list = qobject_cast<CfgListWidget *>(slot.self)) {
        switch (pick(rng, 5)) {
        case 0:
            note(QStringLiteral("list add at %1").arg(ref));
            list->addValue(chance(rng, 50) ? QVariant(uint(pick(rng, 12))) : randomValue(rng), ref);
            break;
        case 1:
            for (int row = 0; row < list->count(); ++row)
                list->item(row)->setSelected(chance(rng, 40));
            note(QStringLiteral("list remove selected at %1").arg(ref));
            list->remove(ref);
            break;
        case 2:
            note(QStringLiteral("list remove all at %1").arg(ref));
            list->removeAll(ref);
            break;
        case 3:
            note(QStringLiteral("list edit"));
            if (list->count() > 0)
                editInPlace(list, list->model()->index(pick(rng, list->count()), 0));
            break;
        default:
            note(QStringLiteral("list input mode"));
            list->inputMode(pick(rng, 3));
        }
    } else if (auto *table = qobject_cast<CfgTableWidget *>(slot.self)) {
        switch (pick(rng, 4)) {
        case 0:
            note(QStringLiteral("table add row at %1").arg(ref));
            table->addValue(chance(rng, 70) ? QVariant(QStringList{QString::number(pick(rng, 9)),
                                                                   randomText(rng)})
                                            : randomValue(rng),
                            ref);
            break;
        case 1:
            note(QStringLiteral("table add cell at %1").arg(ref));
            table->addValue(QString::number(pick(rng, 9)), ref);
            break;
        case 2:
            for (int row = 0; row < table->rowCount(); ++row)
                for (int column = 0; column < table->columnCount(); ++column)
                    if (QTableWidgetItem *cell = table->item(row, column))
                        cell->setSelected(chance(rng, 40));
            note(QStringLiteral("table remove at %1").arg(ref));
            table->remove(ref);
            break;
        default:
            note(QStringLiteral("table edit"));
            if (table->rowCount() > 0 && table->columnCount() > 0)
                editInPlace(table, table->model()->index(pick(rng, table->rowCount()),
                                                         pick(rng, table->columnCount())));
        }
    }
}

void TestMonkey::operate(int op)
{
    Placed &slot = placed[pick(rng, int(placed.size()))];
    const QString &kind = slot.kind;
    switch (op) {
    case 0:
        bind(slot);
        break;
    case 1: {
        static const int ids[] = {0, 0, 1, 2, 3, 7};
        const int id = ids[pick(rng, int(std::size(ids)))];
        note(QStringLiteral("refresh %1 with hardware %2").arg(kind).arg(id));
        slot.control.updateControl(id);
        break;
    }
    case 2: {
        const int which = pick(rng, 4);
        const bool on = chance(rng, which < 2 ? 80 : 20); // mostly open, shown, no error
        note(QStringLiteral("%1 %2 %3")
                 .arg(QStringList{"enable", "gate", "hide", "error"}.at(which), kind)
                 .arg(on));
        if (which == 0)
            slot.control.setEnabled(on);
        else if (which == 1)
            slot.control.updateEnableState(on);
        else if (which == 2)
            slot.control.setHidden(on);
        else
            slot.control.setError(on);
        break;
    }
    case 3: {
        const int level = pick(rng, 4);
        note(QStringLiteral("licence level %1").arg(level));
        setGUILicenseLevel(level);
        break;
    }
    case 4: {
        static const Qt::Key keys[] = {
            Qt::Key_0,      Qt::Key_1,     Qt::Key_5,         Qt::Key_9,      Qt::Key_Minus,
            Qt::Key_Period, Qt::Key_Comma, Qt::Key_Up,        Qt::Key_Down,   Qt::Key_PageUp,
            Qt::Key_End,    Qt::Key_Home,  Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Space,
            Qt::Key_A,      Qt::Key_F2,    Qt::Key_Return,    Qt::Key_Escape};
        const Qt::Key key = keys[pick(rng, int(std::size(keys)))];
        note(QStringLiteral("key %1 on %2").arg(int(key), 0, 16).arg(kind));
        QTest::keyClick(slot.self, key);
        break;
    }
    case 5: {
        const QPoint at(pick(rng, qMax(1, slot.self->width())),
                        pick(rng, qMax(1, slot.self->height())));
        const bool twice = chance(rng, 30);
        note(QStringLiteral("%1 on %2 at %3,%4")
                 .arg(twice ? "double click" : "click", kind)
                 .arg(at.x())
                 .arg(at.y()));
        auto *view = qobject_cast<QAbstractItemView *>(slot.self);
        QWidget *target = view ? view->viewport() : slot.self.data();
        if (twice)
            QTest::mouseDClick(target, Qt::LeftButton, {}, at);
        else
            QTest::mouseClick(target, Qt::LeftButton, {}, at);
        break;
    }
    case 6:
        collectionOp(placed[6 + pick(rng, 2)]);
        break;
    case 7: {
        const int ref = chance(rng, 10) ? 2 : firstRef + pick(rng, refCount);
        note(QStringLiteral("new record %1").arg(ref));
        host->records[ref] = randomRecord(rng, ref - firstRef);
        if (ref == 2 && chance(rng, 70))
            host->records[2].value = uint(pick(rng, 25));
        break;
    }
    case 8:
        note(QStringLiteral("table rebuilt"));
        host->rebuild();
        host->rebuildOnWrite = chance(rng, 30);
        break;
    case 9: {
        const bool label = chance(rng, 50);
        note(QStringLiteral("host deletes the %1 of %2")
                 .arg(label ? "label" : "related widget", kind));
        delete (label ? slot.label : slot.related).data();
        break;
    }
    case 10: {
        const bool wholeForm = chance(rng, 5);
        note(QStringLiteral("deleteLater %1").arg(wholeForm ? QStringLiteral("the form") : kind));
        if (wholeForm) {
            form->deleteLater();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            form = new QWidget;
            form->resize(200, 360);
            form->show();
            for (Placed &each : placed) {
                place(each);
                bind(each);
            }
        } else {
            slot.self->deleteLater();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            place(slot);
            bind(slot);
        }
        break;
    }
    default: {
        // The kinds' own operations.
        note(QStringLiteral("own operation of %1").arg(kind));
        if (auto *combo = qobject_cast<CfgComboBox *>(slot.self)) {
            combo->setSkip(chance(rng, 20));
            combo->updateSelection(firstRef + pick(rng, refCount));
        } else if (auto *edit = qobject_cast<CfgLineEdit *>(slot.self)) {
            if (chance(rng, 50))
                edit->displayText(randomText(rng));
            else
                edit->setText(randomText(rng));
        } else if (auto *radio = qobject_cast<CfgRadioButton *>(slot.self)) {
            radio->setSelected(pick(rng, 6));
        } else if (slot.control.userEdit) {
            slot.control.userEdit();
        }
    }
    }
}

void TestMonkey::run()
{
    const QByteArray seedText = qgetenv("TELECFG_MONKEY_SEED");
    runSeed = seedText == "random" ? std::random_device()()
              : seedText.isEmpty() ? 20261124u
                                   : seedText.toUInt();
    bool counted = false;
    runOps = qEnvironmentVariableIntValue("TELECFG_MONKEY_OPS", &counted);
    if (!counted)
        runOps = 3000;
    std::printf("monkey: seed %u, %d operations\n", runSeed, runOps);
    std::fflush(stdout);
    rng.seed(runSeed);

    host = std::make_unique<RandomHost>(rng);
    host->records[2].value = 10u;
    for (int ref = firstRef; ref < firstRef + refCount; ++ref)
        host->records[ref] = randomRecord(rng, ref - firstRef);
    ModalCatcher catcher; // refusals are answered with OK
    form = new QWidget;
    form->resize(200, 360);
    form->show();
    for (const QString &kind : anyControlKinds())
        placed.push_back(Placed{kind, {}, {}, {}, {}, 0});
    for (Placed &slot : placed) {
        place(slot);
        bind(slot);
    }

    // The operations run from the event loop, as a host's code does: an object deleted later
    // then goes when the host's code returns, not inside a message box the library opens.
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [this, &loop] {
        drive();
        loop.quit();
    });
    loop.exec();
    delete form.data();
    placed.clear();
}

void TestMonkey::drive()
{
    // Weights of the operations above, in order.
    static const int weights[] = {8, 14, 12, 3, 14, 8, 14, 6, 3, 3, 2, 6};
    std::discrete_distribution<int> choose(std::begin(weights), std::end(weights));
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < runOps; ++i) {
        note(QStringLiteral("#%1").arg(i));
        operate(choose(rng));
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        // What the host's event loop would deliver before the next operation (timers left
        // out, so a run replays exactly).
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QTest::currentTestFailed()) {
            printRecent();
            return;
        }
    }
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    std::printf("monkey: %d operations in %.1f s (%.0f/s), %d writes to the host\n", runOps,
                seconds, runOps / seconds, host->writes);
}

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
