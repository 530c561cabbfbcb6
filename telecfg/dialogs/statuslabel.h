// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QLabel>
#include <QVariant>
#include <memory>

/// A label showing one live value on a background colour for its state. Every change of
/// value is marked by a yellow frame that a single-shot timer takes away again.
class TELECFG_EXPORT StatusLabel : public QLabel
{
    Q_OBJECT

public:
    /// Any int is a valid State; values other than these show no colour.
    enum State : int {
        /// No colour.
        StateNone = 0,
        /// Green.
        StateGreen = 1,
        /// Red.
        StateRed = 2,
        /// Yellow.
        StateYellow = 3,
        /// Orange.
        StateOrange = 4,
        // Same colour as StateRed, yet a separate state: a switch between them is a change.
        StateRedToo = 5,
    };
    Q_ENUM(State)

    /// Creates an empty label in StateNone.
    /// @param parent the owning widget; may be null.
    explicit StatusLabel(QWidget *parent = nullptr);
    /// Destroys the label and stops its timer.
    ~StatusLabel() override;

    /// Shows `value` in `state`. A repeated text and state with no duration changes nothing;
    /// otherwise `highlight` or a non-zero `durationMs` frames the label for `durationMs`
    /// milliseconds (2000 when 0, or when negative).
    /// @param value the value shown, as its text.
    /// @param state the background colour's state.
    /// @param highlight whether to frame the label even when nothing changed.
    /// @param durationMs how long the frame stays, in milliseconds; 0 or less means 2000.
    void setValue(QVariant value, StatusLabel::State state, bool highlight, int durationMs);

public slots:
    /// Ends the highlight, keeping the state's colour.
    void resetTimer();

private:
    QString addState();

    // The object's state, behind a pointer so that it can change within 1.x without changing
    // the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
