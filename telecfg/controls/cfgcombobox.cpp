// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/qtcompat_p.h"

#include <QColor>
#include <QIcon>
#include <QVector>
#include <array>

namespace {
enum Colour { Red, Yellow, PaleYellow, White, PaleGrey, ColourCount };

// Built once: a refresh of an unchanged form then costs one string comparison.
const QString &comboSheet(Colour colour)
{
    static const std::array<QString, ColourCount> sheets = [] {
        const QString tabs(7, QLatin1Char('\t'));
        const QString tail =
            QStringLiteral("; border:1px solid; ") + tabs +
            QStringLiteral("border-radius:2px; padding:1px;color: black; border-color: "
                           "rgb(130,130,130); } ") +
            tabs +
            QStringLiteral("QComboBox::drop-down{border:0px solid black; padding:1px;color: "
                           "white; border-width:0px; }") +
            tabs +
            // No slash after the colon, brace before the semicolon: hosts ship it so.
            QStringLiteral("QComboBox::down-arrow {image: url(:images/arrow.png)};");
        const char *names[ColourCount] = {"red", "yellow", "#ffff8e", "white", "#f1f1f1"};
        std::array<QString, ColourCount> result;
        for (int i = 0; i < ColourCount; ++i)
            result[i] =
                QStringLiteral("QComboBox{background-color: ") + QLatin1String(names[i]) + tail;
        return result;
    }();
    return sheets[colour];
}
} // namespace

CfgComboBox::CfgComboBox(QWidget *parent) : QComboBox(parent)
{
    qtcompat::connectCurrentIndexText(this, this, SLOT(changed(const QString &)));
    setFocusPolicy(Qt::StrongFocus);
}

CfgComboBox::~CfgComboBox() = default;

void CfgComboBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                               QList<QWidget *> relatedWidgets)
{
    if (!bound.bind(iface, ref, relatedWidgets))
        return;
    loading = true;
    setToolTip(bound.record().toolTip);
    clear();

    // Keys are positions: a gap leaves a blank item, a key past the entry count is dropped.
    // Hosts rely on it; deliberate.
    const QMap<int, QPair<QString, QString>> options = bound.record().options;
    QVector<QPair<QString, QString>> items(options.size());
    for (auto it = options.cbegin(); it != options.cend(); ++it)
        if (it.key() >= 0 && it.key() < items.size())
            items[it.key()] = it.value();
    for (int i = 0; i < items.size(); ++i)
        insertItem(i, QIcon(), items[i].first, QVariant(items[i].second));

    selectValue(bound.record().value);
    updateControl(0);
    bound.registerIn(this, label);
    loading = false;
}

void CfgComboBox::selectValue(const QVariant &value)
{
    const int index = qtcompat::findData(this, value, Qt::UserRole);
    if (index >= 0)
        setCurrentIndex(index);
}

void CfgComboBox::updateControl(int hardwareId)
{
    if (!bound.refreshVisibility(this, hardwareId))
        return;
    updateColor(isEnabled());
}

void CfgComboBox::updateColor(bool enabled)
{
    if (enabled) {
        // Setting an equal background still makes the model announce a change; skip it.
        static const QVariant white = QColor(QStringLiteral("white"));
        for (int i = 0; i < count(); ++i)
            if (itemData(i, Qt::BackgroundRole) != white)
                setItemData(i, white, Qt::BackgroundRole);
    }
    Colour colour = enabled ? White : PaleGrey;
    if (bound.error)
        colour = Red;
    else if (bound.iface && currentIndex() >= 0 &&
             !bound.iface->matchesStored(bound.reference, currentData(Qt::UserRole)))
        colour = enabled ? Yellow : PaleYellow;
    applyStyleSheet(this, comboSheet(colour));
}

void CfgComboBox::updateSelection(int ref)
{
    if (!bound.iface)
        return;
    selectValue(bound.iface->object(ref).value);
}

void CfgComboBox::setSkip(bool skipEdits)
{
    skip = skipEdits;
}

void CfgComboBox::changed(const QString &text)
{
    if (!bound.iface || loading || skip)
        return;
    // By shown text: of two equal texts the first one's value is written. Deliberate.
    const int index = findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
    const QVariant data = itemData(index, Qt::UserRole);
    if (!data.isValid())
        return;
    bound.iface->setValue(bound.reference, data);
    updateControl(0);
    emit cfgComboBoxChanged();
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgComboBox)
