// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/accessiblecombobox_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/controls/imagecheck_p.h"
#include "telecfg/controls/statecolours.h"
#include "telecfg/qtcompat_p.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPersistentModelIndex>
#include <QVector>
#include <array>

namespace {
const BoundKind boundKind = BoundKind::of<CfgComboBox>("telecfg/controls/cfgcombobox.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

enum Colour { Red, Yellow, PaleYellow, White, PaleGrey, ColourCount };

// Built once: a refresh of an unchanged form then costs one string comparison.
// The dark set (setStateColours()) is the same sheet with dark colours and light text.
const QString &comboSheet(Colour colour)
{
    static const auto build = [](const char *const names[], const char *text) {
        const QString tabs(7, QLatin1Char('\t'));
        const QString tail =
            QStringLiteral("; border:1px solid; ") + tabs +
            QStringLiteral("border-radius:2px; padding:1px;color: ") + QLatin1String(text) +
            QStringLiteral("; border-color: "
                           "rgb(130,130,130); } ") +
            tabs +
            QStringLiteral("QComboBox::drop-down{border:0px solid black; padding:1px;color: "
                           "white; border-width:0px; }") +
            tabs +
            // No slash after the colon, brace before the semicolon: hosts ship it so.
            QStringLiteral("QComboBox::down-arrow {image: url(:images/arrow.png)};");
        std::array<QString, ColourCount> result;
        for (int i = 0; i < ColourCount; ++i)
            result[i] =
                QStringLiteral("QComboBox{background-color: ") + QLatin1String(names[i]) + tail;
        return result;
    };
    static const char *const standard[ColourCount] = {"red", "yellow", "#ffff8e", "white",
                                                      "#f1f1f1"};
    static const char *const dark[ColourCount] = {"#8b1a1a", "#6b5500", "#5a4a00", "#2a2a2a",
                                                  "#3a3a3a"};
    static const std::array<QString, ColourCount> sheets[2] = {build(standard, "black"),
                                                               build(dark, "white")};
    return sheets[int(stateColours())][colour];
}

// The item lists last painted white, by model, root and column, until their model announces
// any change of data, rows or layout: a refresh of an unchanged list then reads no item.
struct WhiteList
{
    QPersistentModelIndex root;
    int column;
};
QHash<const QAbstractItemModel *, QVector<WhiteList>> &whiteLists()
{
    static QHash<const QAbstractItemModel *, QVector<WhiteList>> lists;
    return lists;
}

bool itemsKnownWhite(const QComboBox *box)
{
    const auto found = whiteLists().constFind(box->model());
    if (found == whiteLists().cend())
        return false;
    for (const WhiteList &list : *found)
        if (list.column == box->modelColumn() && list.root == box->rootModelIndex())
            return true;
    return false;
}

void rememberItemsWhite(const QComboBox *box)
{
    QAbstractItemModel *model = box->model();
    if (!model || itemsKnownWhite(box))
        return;
    auto &lists = whiteLists();
    if (!lists.contains(model)) {
        const auto forget = [model] { whiteLists().remove(model); };
        QObject::connect(model, &QAbstractItemModel::dataChanged, forget);
        QObject::connect(model, &QAbstractItemModel::rowsInserted, forget);
        QObject::connect(model, &QAbstractItemModel::rowsMoved, forget);
        QObject::connect(model, &QAbstractItemModel::columnsInserted, forget);
        QObject::connect(model, &QAbstractItemModel::columnsMoved, forget);
        QObject::connect(model, &QAbstractItemModel::columnsRemoved, forget);
        QObject::connect(model, &QAbstractItemModel::layoutChanged, forget);
        QObject::connect(model, &QAbstractItemModel::modelReset, forget);
        QObject::connect(model, &QObject::destroyed, forget);
    }
    lists[model].append({QPersistentModelIndex(box->rootModelIndex()), box->modelColumn()});
}
} // namespace

struct CfgComboBox::Private
{
    explicit Private(CfgComboBox *self) : bound(self, boundKind) {}
    BoundControl bound;
    bool skip = false;
};

CfgComboBox::CfgComboBox(QWidget *parent) : QComboBox(parent), d(std::make_unique<Private>(this))
{
    checkImagesWhenShown(this);
    installComboBoxAccessibility();
    qtcompat::connectCurrentIndexText(this, this, SLOT(changed(const QString &)));
    setFocusPolicy(Qt::StrongFocus);
}

CfgComboBox::~CfgComboBox() = default;

void CfgComboBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                               QList<QWidget *> relatedWidgets)
{
    d->bound.bind(iface, ref, label, relatedWidgets, [this] {
        // Filling the list and selecting the value are no edits.
        const BoundControl::Loading loading(d->bound);
        clear();
        // Keys are positions: a gap leaves a blank item, a key past the entry count is
        // dropped. Hosts rely on it; deliberate.
        const QMap<int, QPair<QString, QString>> options = d->bound.record().options;
        QVector<QPair<QString, QString>> items(options.size());
        for (auto it = options.cbegin(); it != options.cend(); ++it)
            if (it.key() >= 0 && it.key() < items.size())
                items[it.key()] = it.value();
        for (int i = 0; i < items.size(); ++i)
            insertItem(i, QIcon(), items[i].first, QVariant(items[i].second));
        selectValue(d->bound.record().value);
        updateControl(0);
    });
}

void CfgComboBox::updateControl(int hardwareId)
{
    d->bound.update(hardwareId, [this] { updateColor(isEnabled()); });
}

void CfgComboBox::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgComboBox::setError(bool error)
{
    d->bound.error = error;
}

bool CfgComboBox::isError()
{
    return d->bound.error;
}

void CfgComboBox::updateColor(bool enabled)
{
    if (enabled && !itemsKnownWhite(this)) {
        // Setting an equal background still makes the model announce a change; skip it.
        static const QVariant white = QColor(QStringLiteral("white"));
        for (int i = 0, n = count(); i < n; ++i)
            if (itemData(i, Qt::BackgroundRole) != white)
                setItemData(i, white, Qt::BackgroundRole);
        rememberItemsWhite(this);
    }
    Colour colour = enabled ? White : PaleGrey;
    if (d->bound.error)
        colour = Red;
    else if (d->bound.iface && currentIndex() >= 0 &&
             !d->bound.iface->matchesStored(d->bound.reference, currentData(Qt::UserRole)))
        colour = enabled ? Yellow : PaleYellow;
    applyStyleSheet(this, comboSheet(colour));
    // The sheet sets the text colour itself.
    if (colour == Red)
        d->bound.present(statecue::State::Invalid, statecue::refusedByDevice());
    else if (colour == Yellow || colour == PaleYellow)
        d->bound.present(statecue::State::Modified, d->bound.storedText());
    else
        d->bound.present(statecue::State::Normal);
}

void CfgComboBox::updateSelection(int ref)
{
    if (!d->bound.iface)
        return;
    selectValue(d->bound.iface->object(ref).value);
}

void CfgComboBox::setSkip(bool skipEdits)
{
    d->skip = skipEdits;
}

void CfgComboBox::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgComboBox::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgComboBox::changed(const QString &text)
{
    if (d->skip)
        return;
    // By shown text: of two equal texts the first one's value is written. Deliberate.
    const int index = findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
    const QVariant data = itemData(index, Qt::UserRole);
    if (data.isValid() && d->bound.write(data))
        emit cfgComboBoxChanged();
}

void CfgComboBox::selectValue(const QVariant &value)
{
    const int index = qtcompat::findData(this, value, Qt::UserRole);
    if (index >= 0)
        setCurrentIndex(index);
}
