// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tests/support/modalcatcher.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>

ModalCatcher::ModalCatcher(std::function<void(QWidget *)> modalAction)
    : action(std::move(modalAction))
{
    connect(&timer, &QTimer::timeout, this, &ModalCatcher::poll);
    timer.start(5);
}

void ModalCatcher::poll()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal) {
        handled = nullptr;
        return;
    }
    if (modal == handled)
        return;
    handled = modal;
    Seen entry{QString::fromLatin1(modal->metaObject()->className()), modal->windowTitle(),
               QString()};
    if (auto *box = qobject_cast<QMessageBox *>(modal))
        entry.text = box->text();
    seen.append(entry);
    if (action) {
        action(modal);
        return;
    }
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}
