// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QLabel>
#include <QTimer>
#include <QVariant>

// A label showing one live value on a background colour for its state. Every change of
// value is marked by a yellow frame that a single-shot timer takes away again.
class TELECFG_EXPORT StatusLabel : public QLabel
{
    Q_OBJECT

public:
    // Any int is a valid State; values other than these show no colour.
    enum State : int {
        StateNone = 0,
        StateGreen = 1,
        StateRed = 2,
        StateYellow = 3,
        StateOrange = 4,
        // Same colour as StateRed, yet a separate state: a switch between them is a change.
        StateRedToo = 5,
    };
    Q_ENUM(State)

    explicit StatusLabel(QWidget *parent = nullptr);
    ~StatusLabel() override;

    // Shows `value` in `state`. A repeated text and state with no duration changes nothing;
    // otherwise `highlight` or a non-zero `durationMs` frames the label for `durationMs`
    // milliseconds (2000 when 0, or when negative).
    void setValue(QVariant value, StatusLabel::State state, bool highlight, int durationMs);

public slots:
    // Ends the highlight, keeping the state's colour.
    void resetTimer();

private:
    QString addState();

    QTimer timer;
    State state = StateNone;
};
