// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/mainconfig.h"
#include "telecfg/controls/statecolours.h"
#include "telecfg/controls/statecue_p.h"

#include <QBrush>
#include <QCoreApplication>
#include <QSet>
#include <array>

// The four states an element's item is painted in, shared by the list and the table.
enum class ElementState { Removed, Invalid, Modified, Existing };

// The item data role holding the corner cue of an invalid or modified element
// (statecue::State as an int), which the editors' item delegate draws.
constexpr int StateCueRole = Qt::UserRole + 0x100;

// The background and tool tip of each state, built once per repaint rather than per item.
class StateLook
{
public:
    StateLook()
    {
        static const QColor colours[2][4] = {
            {Qt::gray, Qt::red, Qt::yellow, Qt::white},
            {QColor(0x4a, 0x4a, 0x4a), QColor(0x8b, 0x1a, 0x1a), QColor(0x6b, 0x55, 0x00),
             QColor(0x2a, 0x2a, 0x2a)}}; // the dark set (setStateColours())
        static const char *const tips[] = {
            QT_TRANSLATE_NOOP("CfgListWidget", "Usunięty element"),
            QT_TRANSLATE_NOOP("CfgListWidget", "Nieprawidłowy element"),
            QT_TRANSLATE_NOOP("CfgListWidget", "Zmodyfikowany element"),
            QT_TRANSLATE_NOOP("CfgListWidget", "Istniejący element"),
        };
        for (int i = 0; i < 4; ++i) {
            brushes[i] = QBrush(colours[int(stateColours())][i], Qt::SolidPattern);
            toolTips[i] = QCoreApplication::translate("CfgListWidget", tips[i]);
        }
    }

    template <class Item> void paint(Item *item, ElementState state) const
    {
        item->setData(Qt::BackgroundRole, brushes[int(state)]);
        item->setToolTip(toolTips[int(state)]);
        item->setData(Qt::AccessibleDescriptionRole, toolTips[int(state)]);
        item->setData(StateCueRole, cues[int(state)]);
    }

    // Brushes change only with the state colours; tool tips with the language.
    bool operator==(const StateLook &other) const
    {
        return toolTips == other.toolTips && brushes == other.brushes;
    }

private:
    std::array<QVariant, 4> brushes;
    std::array<QVariant, 4> cues = {QVariant(), QVariant(int(statecue::State::Invalid)),
                                    QVariant(int(statecue::State::Modified)), QVariant()};
    std::array<QString, 4> toolTips;
};

// One state painted on one item.
template <class Item> void paintState(Item *item, ElementState state)
{
    StateLook().paint(item, state);
}

// Decides the state of each item from the number it holds under Qt::UserRole, with the
// host's invalid and modified places fetched once per repaint.
class ElementPainter
{
public:
    ElementPainter(MainConfigIFace *iface, int ref)
    {
        const QList<int> invalidList = iface->invalidItems(ref);
        const QList<int> modifiedList = iface->modifiedItems(ref);
        invalid = QSet<int>(invalidList.begin(), invalidList.end());
        modified = QSet<int>(modifiedList.begin(), modifiedList.end());
    }

    ElementState stateOf(quint32 data) const
    {
        if (!(data & liveFlag))
            return ElementState::Removed;
        const int place = int(data & ~liveFlag);
        if (invalid.contains(place))
            return ElementState::Invalid;
        if (modified.contains(place))
            return ElementState::Modified;
        return ElementState::Existing;
    }

    template <class Item> void paint(Item *item) const
    {
        look.paint(item, stateOf(item->data(Qt::UserRole).toUInt()));
    }

    // Paints every item as the other painter would.
    bool operator==(const ElementPainter &other) const
    {
        return invalid == other.invalid && modified == other.modified && look == other.look;
    }

private:
    StateLook look;
    QSet<int> invalid;
    QSet<int> modified;
};

// The search both editors make for an element by its shown text, over the items found with
// that text, in the order found. `index` ends as the place of the last item looked at. The
// text under edit is never a clash, even where a present element has it; `exclude` skips
// the item data equal to it (-1: none).
template <class Item>
bool findPresentElement(const QList<Item *> &items, const QString &text, const QString &editText,
                        int exclude, int &index)
{
    for (Item *item : items) {
        const quint32 data = item->data(Qt::UserRole).toUInt();
        index = int(data);
        if (exclude != -1 && index == exclude)
            continue;
        if (text == editText) {
            index = int(data & ~liveFlag);
            return false;
        }
        if (data & liveFlag) {
            index = int(data & ~liveFlag);
            return true;
        }
    }
    return false;
}
