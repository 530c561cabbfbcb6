// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

class QPainter;
class QRect;
class QWidget;

// Internal to the library: what a bound control tells beside its state colour, so that no
// state is told by colour alone and every text stays readable in any palette.
namespace statecue {

// The states a control's colour tells.
enum class State { Normal, Modified, Invalid };

// What one refresh of a control found.
struct Presentation
{
    State state = State::Normal;
    // For an invalid value: why, where the library knows it ("outside the range 0-100");
    // for a modified one: the stored value as the user reads it, where the host tells it.
    QString detail;
    // The background the control's style sheet paints under its text; invalid where the
    // sheet paints none (the text then stands on the palette's own background).
    QColor textBackground;
    // Whether the control shows the corner cue itself (the list and table editors leave it to
    // their elements).
    bool cornerCue = true;
};

// What present() last did to a control, so that a refresh that changes nothing costs only
// a comparison. Each bound control keeps one.
struct Memo
{
    State state = State::Normal;
    QString detail;
    QColor textBackground;
    QString hostToolTip;  // the host's own text, first in the tool tip
    QString shownToolTip; // what the control shows, host's text and state line
};

// Applies a refresh's findings to `control`: text colours readable on the sheet's
// background in every state, the corner cue, the state line of the tool tip after the
// host's own text, and the accessible description (whose change is announced to assistive
// technology). Changes nothing that is already so.
void present(QWidget *control, const Presentation &presentation, Memo &memo);

// The name a bound control shows the user: the text of its label (the one given at binding,
// else the label whose buddy it is) without mnemonic marks and trailing colon, with a
// button's own text after it. Either widget may be null; empty when neither tells a name.
QString shownName(QWidget *control, QWidget *label);
// Makes shownName() the control's accessible name, and keeps it so at every change of the
// application's language; a name the host gave the control itself stays.
void nameAfterLabel(QWidget *control, QWidget *label);

// The line the tool tip and the accessible description gain for a state ("" when normal).
QString stateLine(const Presentation &presentation);

// The text colour for `background`: black while enabled, and while disabled the lightest
// grey that still reads at 4.5:1 on it.
QColor readableText(const QColor &background, bool disabled);

// The contrast ratio of two colours, from 1 (same) to 21 (black on white).
double contrastRatio(const QColor &a, const QColor &b);

// Draws the cue of `state` into the top left corner of `rect` (used for list and table items).
void paintCue(QPainter *painter, const QRect &rect, State state);

// Reasons the library gives for an invalid value.
QString outsideRange(const QString &minimum, const QString &maximum);
QString notAMultipleOf(const QString &step);
QString doesNotMatchPattern();
QString tooLong(int maximum);
QString blankAtEnds();
QString refusedByDevice();
// A check box's or radio button's stored state as the user reads it.
QString checkedWords(bool checked);

} // namespace statecue
