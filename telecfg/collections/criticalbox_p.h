// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QPointer>

// The editors' refusal message: a critical box with one OK button, as the toolkit's static
// critical() shows it, but owned from the heap: a host that deletes the editor (or its page)
// while the box is open takes the box with it, which would be a second delete of a box on the
// stack. Returns false when `parent` is gone once the box closes; the caller then stops.
inline bool showCriticalBox(QWidget *parent, const QString &title, const QString &text)
{
    const QPointer<QWidget> alive(parent);
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Critical, title, text, QMessageBox::Ok, parent);
    box->exec();
    delete box.data();
    return !alive.isNull();
}
