// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <functional>

// Watches for modal dialogs and message boxes opened inside the code under test, records
// what they showed and closes them (or hands them to a test's action, which plays the
// user). Lives for one test; stops watching when destroyed.
class ModalCatcher : public QObject
{
    Q_OBJECT

public:
    struct Seen
    {
        QString className;
        QString title;
        QString text;
    };

    // With no action the dialog is rejected (a message box gets its default button).
    explicit ModalCatcher(std::function<void(QWidget *)> action = {});

    QList<Seen> seen;

private slots:
    void poll();

private:
    std::function<void(QWidget *)> action;
    // Guarded: a box opened right after a handled one was deleted can take its address.
    QPointer<QWidget> handled;
    QTimer timer;
};
