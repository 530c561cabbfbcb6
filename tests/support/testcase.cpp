// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tests/support/testcase.h"

#include <QTest>
#include <QVector>

namespace {
struct Expectation
{
    QString fragment;
    bool active = true;
    int seen = 0;
};

QVector<Expectation> &expectations()
{
    static QVector<Expectation> list;
    return list;
}

QtMessageHandler frameworkHandler = nullptr;

void guard(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        // The latest first: a test's own expectation counts before a suite-wide allowance.
        QVector<Expectation> &list = expectations();
        for (auto it = list.rbegin(); it != list.rend(); ++it) {
            if (it->active && message.contains(it->fragment)) {
                ++it->seen;
                return;
            }
        }
    }
    if (frameworkHandler)
        frameworkHandler(type, context, message);
    if ((type == QtWarningMsg || type == QtCriticalMsg) && QTest::currentTestFunction())
        QTest::qFail(qPrintable(QStringLiteral("unexpected warning: ") + message),
                     context.file ? context.file : "", context.line);
}
} // namespace

void TestCase::initTestCase_data()
{
    installWarningGuard();
}

void installWarningGuard()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    // The offscreen test platform telling what it cannot do (raise, grab, size hints); not
    // the product's.
    allowWarning(QStringLiteral("This plugin does not support "));
    // Qt 6's test library noting a key press a disabled control ignored, which the protocol
    // tests do on purpose.
    allowWarning(QStringLiteral("Keyboard event not accepted by receiving widget"));
    // The suites ship no images for the controls' sheets (tst_defaultimages checks them).
    allowWarning(QStringLiteral("telecfg: the images the controls' style sheets name"));
    frameworkHandler = qInstallMessageHandler(guard);
}

void allowWarning(const QString &fragment)
{
    expectations().append({fragment, true, 0});
}

ExpectedWarning::ExpectedWarning(const QString &fragment) : index(expectations().size())
{
    expectations().append({fragment, true, 0});
}

ExpectedWarning::~ExpectedWarning()
{
    Expectation &expected = expectations()[index];
    expected.active = false;
    if (expected.seen == 0)
        QTest::qFail(
            qPrintable(QStringLiteral("expected warning did not come: ") + expected.fragment),
            __FILE__, __LINE__);
}
