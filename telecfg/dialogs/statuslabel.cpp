// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/statuslabel.h"

#include <QTimer>

namespace {
const int defaultHighlightMs = 2000;

QString highlightFrame()
{
    return QStringLiteral("QFrame{border: 2px solid yellow;}");
}

// As wide as the highlight, fully transparent, so the text does not move when it comes.
QString restingFrame()
{
    return QStringLiteral("QFrame{border: 2px solid rgba(255,255,255,0%);}");
}
} // namespace

struct StatusLabel::Private
{
    QTimer timer;
    State state = StateNone;
};

StatusLabel::StatusLabel(QWidget *parent) : QLabel(parent), d(std::make_unique<Private>())
{
    d->timer.setSingleShot(true);
    connect(&d->timer, SIGNAL(timeout()), this, SLOT(resetTimer()));
}

StatusLabel::~StatusLabel() = default;

void StatusLabel::setValue(QVariant value, StatusLabel::State newState, bool highlight,
                           int durationMs)
{
    const QString newText = value.toString();
    if (text() == newText && newState == d->state && durationMs == 0)
        return;

    d->state = newState;
    setText(newText);

    QString sheet;
    if (!highlight && durationMs == 0) {
        resetTimer();
        sheet = restingFrame();
    } else {
        sheet = highlightFrame();
        // A negative duration would leave the frame up for good; it gets the default instead.
        d->timer.start(durationMs > 0 ? durationMs : defaultHighlightMs);
    }
    setStyleSheet(sheet + addState());
}

void StatusLabel::resetTimer()
{
    setStyleSheet(restingFrame() + addState());
    d->timer.stop();
}

QString StatusLabel::addState()
{
    switch (d->state) {
    case StateNone:
        return QStringLiteral("QLabel {};");
    case StateGreen:
        return QStringLiteral("QLabel { background-color : lightgreen};");
    case StateRed:
    case StateRedToo:
        return QStringLiteral("QLabel { background-color : red};");
    case StateYellow:
        return QStringLiteral("QLabel { background-color : yellow};");
    case StateOrange:
        return QStringLiteral("QLabel { background-color : orange};");
    }
    return QString();
}
