// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "demowindow.h"
#include "controlfactory.h"
#include "demotable.h"
#include "devicemenu.h"
#include "ui_bluetoothpage.h"

#include "telecfg/dialogs/gui.h"
#include "telecfg/form/changereview.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/formundo.h"
#include "telecfg/form/parameterbrowser.h"
#include "telecfg/images/defaultimages.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QUndoStack>
#include <utility>

DemoWindow::DemoWindow(DemoTable *demoTable, QWidget *parent)
    : QMainWindow(parent), table(demoTable), tabs(new QTabWidget(this))
{
    initDefaultImages(); // the library's check box, radio button and arrow images
    setWindowTitle(table->title + QStringLiteral("[*]"));
    QToolBar *bar = addToolBar(tr("Urządzenie"));
    bar->setMovable(false);

    bar->addWidget(new QLabel(tr("Wersja konfiguracji:"), bar));
    versionBox = new QComboBox(bar);
    for (int version : std::as_const(table->versions))
        versionBox->addItem(QString::number(version), version);
    versionBox->setCurrentIndex(versionBox->findData(int(table->version())));
    bar->addWidget(versionBox);

    bar->addSeparator();
    bar->addWidget(new QLabel(tr("Sprzęt:"), bar));
    hardwareBox = new QComboBox(bar);
    for (const ParameterTable::Hardware &hardware : std::as_const(table->hardware))
        hardwareBox->addItem(hardware.name, hardware.id);
    bar->addWidget(hardwareBox);

    bar->addSeparator();
    bar->addWidget(new QLabel(tr("Poziom licencji:"), bar));
    licenceBox = new QSpinBox(bar);
    licenceBox->setRange(0, 9);
    licenceBox->setMinimumWidth(48);
    bar->addWidget(licenceBox);

    bar->addSeparator();
    auto *saveButton = new QPushButton(tr("Zapisz"), bar);
    auto *revertButton = new QPushButton(tr("Przywróć"), bar);
    bar->addWidget(saveButton);
    bar->addWidget(revertButton);

    deviceMenu = new DeviceMenu(this);
    summary = new QLabel(this);
    statusBar()->addWidget(summary, 1);

    connect(versionBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &DemoWindow::versionChosen);
    connect(hardwareBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &DemoWindow::refresh);
    connect(licenceBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &DemoWindow::licenceChosen);
    connect(saveButton, &QPushButton::clicked, this, &DemoWindow::save);
    connect(revertButton, &QPushButton::clicked, this, &DemoWindow::revert);

    setCentralWidget(tabs);
    buildPages();
    addUndo(bar);
    refresh();
    // The form follows every edit by itself; the window follows the form-wide state: Save
    // and Revert only while something differs, the title marked, the summary up to date.
    FormState *state = binder.state();
    saveButton->setEnabled(state->isModified());
    revertButton->setEnabled(state->isModified());
    connect(state, &FormState::modifiedChanged, saveButton, &QWidget::setEnabled);
    connect(state, &FormState::modifiedChanged, revertButton, &QWidget::setEnabled);
    connect(state, &FormState::modifiedChanged, this, &QWidget::setWindowModified);
    connect(state, &FormState::parameterChanged, this, &DemoWindow::showSummary);
    connect(state, &FormState::reloaded, this, &DemoWindow::showSummary);
    ChangeReview::askBeforeClosing(this, table, [this] { return save(); });
    resize(1000, 560);
}

void DemoWindow::addUndo(QToolBar *bar)
{
    // Every edit on the pages and in the browser is a step; the keys work anywhere in the
    // window, each control's context menu restores its stored value.
    undo = new FormUndo(binder.state(), this);
    undo->attach(&binder);
    undo->installShortcuts(this);
    bar->addSeparator();
    bar->addAction(undo->stack()->createUndoAction(bar, tr("Cofnij")));
    bar->addAction(undo->stack()->createRedoAction(bar, tr("Ponów")));
}

void DemoWindow::buildPages()
{
    QMap<QString, QFormLayout *> forms;
    for (const QString &page : std::as_const(table->pages)) {
        auto *scroll = new QScrollArea(tabs);
        scroll->setWidgetResizable(true);
        tabs->addTab(scroll, page);
        // The Bluetooth page is designed in Qt Designer from the plugin's widgets.
        if (page == QLatin1String("Bluetooth")) {
            auto *designed = new QWidget(scroll);
            Ui::BluetoothPage().setupUi(designed);
            scroll->setWidget(designed);
            continue;
        }
        auto *content = new QWidget(scroll);
        auto *form = new QFormLayout(content);
        form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
        scroll->setWidget(content);
        forms.insert(page, form);
    }
    for (int ref : table->parameters()) {
        const ParameterTable::Presentation parameter = table->presentation(ref);
        QFormLayout *form = forms.value(parameter.page);
        if (!form || parameter.control.isEmpty())
            continue;
        QWidget *content = form->parentWidget();
        QWidget *control = createControl(ref, parameter, table, content);
        if (!control) {
            qWarning("demo: parameter %d has an unknown control \"%s\"", ref,
                     qPrintable(parameter.control));
            continue;
        }
        if (!parameter.label.isEmpty()) {
            auto *label = new QLabel(parameter.label, content);
            auto *bound = control->findChild<QWidget *>(QStringLiteral("cfg_%1").arg(ref));
            label->setBuddy(bound ? bound : control); // the binder hides a control's buddy with it
            form->addRow(label, control);
        } else if (parameter.control == QLatin1String("radiobutton")) {
            form->addRow(QString(), control); // under the group's first choice
        } else {
            form->addRow(control);
        }
    }
    for (const FormBinder::Problem &problem : binder.bind(tabs, table))
        qWarning("demo: %s", qPrintable(problem.text()));
    // Every parameter in one searchable view, editing the same table as the pages.
    browser = new ParameterBrowser(binder.state(), tabs);
    tabs->addTab(browser, tr("Wszystkie parametry"));
}

int DemoWindow::hardwareId() const
{
    return hardwareBox->currentData().toInt();
}

void DemoWindow::refresh()
{
    binder.refresh(hardwareId());
    browser->setHardwareId(hardwareId());
    showSummary();
}

void DemoWindow::showSummary()
{
    const FormState *state = binder.state();
    summary->setText(tr("Wersja %1, zmienione parametry: %2, błędne: %3")
                         .arg(table->version())
                         .arg(state->modifiedParameters().size())
                         .arg(state->invalidParameters().size()));
}

bool DemoWindow::save()
{
    // The user sees every change, pages not shown included, and may leave some out; the
    // demo's device takes the chosen ones.
    ChangeReview review(table, this);
    if (review.exec() != QDialog::Accepted)
        return false;
    const int written = review.chosen().size();
    binder.state()->save();
    statusBar()->showMessage(tr("Zapisano w urządzeniu parametrów: %1").arg(written), 5000);
    refresh();
    return true;
}

void DemoWindow::revert()
{
    binder.state()->revert(); // every control shows its stored value again
}

void DemoWindow::versionChosen(int index)
{
    table->setVersion(versionBox->itemData(index).toUInt());
    refresh();
}

void DemoWindow::licenceChosen(int level)
{
    setGUILicenseLevel(level);
    refresh();
}

QStringList DemoWindow::renderPages(const QString &dir)
{
    QStringList files;
    QDir().mkpath(dir);
    show();
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QCoreApplication::processEvents();
        // File names in plain ASCII: "Sieci komórkowe" becomes "sieci-komorkowe".
        QString name;
        for (QChar c : tabs->tabText(i)
                           .toLower()
                           .replace(QChar(0x142), QLatin1Char('l'))
                           .normalized(QString::NormalizationForm_D)) {
            if (c.isLetterOrNumber() && c.unicode() < 128)
                name.append(c);
            else if (c.isSpace())
                name.append(QLatin1Char('-'));
        }
        const QString file = QDir(dir).filePath(
            QStringLiteral("%1-%2.png").arg(i + 1, 2, 10, QLatin1Char('0')).arg(name));
        if (grab().save(file))
            files.append(file);
    }
    return files + renderReview(dir) + deviceMenu->renderDialogs(dir);
}

QStringList DemoWindow::renderReview(const QString &dir)
{
    QStringList files;
    const auto grabTo = [&files](QWidget *widget, const QString &file) {
        if (widget && widget->grab().save(file))
            files.append(file);
    };
    {
        ChangeReview review(table, this);
        review.show();
        QCoreApplication::processEvents();
        grabTo(&review, QDir(dir).filePath(QStringLiteral("dialog-review.png")));
    }
    // The question is modal: grab it from inside its own event loop, then cancel it.
    QTimer::singleShot(100, this, [&]() {
        QWidget *question = QApplication::activeModalWidget();
        grabTo(question, QDir(dir).filePath(QStringLiteral("dialog-unsaved-changes.png")));
        if (question)
            question->close();
    });
    close();
    return files;
}
