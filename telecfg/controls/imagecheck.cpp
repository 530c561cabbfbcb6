// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/imagecheck_p.h"

#include <QEvent>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QWidget>
#include <atomic>
#include <utility>

namespace {
std::atomic<bool> checked{false};

// Looks once per process, at the first control shown whose sheet names images.
void check(const QWidget *control)
{
    static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    QStringList named;
    for (auto it = url.globalMatch(control->styleSheet()); it.hasNext();)
        named.append(it.next().captured(1));
    if (named.isEmpty() || checked.exchange(true))
        return;
    QStringList missing;
    for (const QString &path : std::as_const(named))
        if (!missing.contains(path) && !QFile::exists(path))
            missing.append(path);
    if (!missing.isEmpty())
        qWarning("telecfg: the images the controls' style sheets name are missing (%s), so "
                 "check boxes, radio buttons and combo box arrows are drawn without them; link "
                 "telecfg::images and call initDefaultImages(), or ship them in the host's "
                 "resources",
                 qPrintable(missing.join(QStringLiteral(", "))));
}

class ImageCheck : public QObject
{
public:
    static ImageCheck *instance()
    {
        static ImageCheck filter;
        return &filter;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            check(static_cast<QWidget *>(watched));
            // A combo box shown before its first refresh has no sheet yet: it stays watched.
            if (checked.load(std::memory_order_relaxed))
                watched->removeEventFilter(this);
        }
        return false;
    }
};
} // namespace

void checkImagesWhenShown(QWidget *control)
{
    if (!checked.load(std::memory_order_relaxed))
        control->installEventFilter(ImageCheck::instance());
}
