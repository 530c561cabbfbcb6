// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

// The base of every suite: from the start of its run a warning nobody declared (a failed
// connection, a QVariant conversion, a layout or style complaint) fails the test function
// that caused it. Debug output goes on to the test log as before.
class TestCase : public QObject
{
    Q_OBJECT

private slots:
    // Runs before any test function; a suite that needs global data would declare its own
    // and call installWarningGuard() there.
    void initTestCase_data();
};

// Installs the guard over the test framework's own message handler (once per run).
void installWarningGuard();

// A warning the product gives on purpose, allowed for the rest of the suite's run
// (the message contains `fragment`).
void allowWarning(const QString &fragment);

// A warning a test expects: while this lives, messages containing `fragment` are taken
// as expected; when it goes, the test fails unless at least one came.
class ExpectedWarning
{
public:
    explicit ExpectedWarning(const QString &fragment);
    ~ExpectedWarning();
    ExpectedWarning(const ExpectedWarning &) = delete;
    ExpectedWarning &operator=(const ExpectedWarning &) = delete;

private:
    int index;
};
