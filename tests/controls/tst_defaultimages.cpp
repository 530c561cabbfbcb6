// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/images/defaultimages.h"
#include "tests/support/datatable.h"
#include "tests/support/testhost.h"

#include <QImage>
#include <QRegularExpression>
#include <QtTest>
#include <utility>

namespace {
void collectUrls(const QString &sheet, QSet<QString> *urls)
{
    static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    for (auto it = url.globalMatch(sheet); it.hasNext();)
        urls->insert(it.next().captured(1));
}
// A check box's record at 3, a radio button's at 4 and a combo box's at 5.
void addImageRecords(TestHost &host)
{
    host.add(3, 1, true).minVersions[0] = 0;
    host.add(4, 4, 1).minimum = 1;
    host.records[4].minVersions[0] = 0;
    host.add(5, 0, QStringLiteral("a")).options[0] = {QStringLiteral("a"), QStringLiteral("a")};
    host.records[5].minVersions[0] = 0;
}

template <class Control> Control *bound(TestHost &host, int ref)
{
    auto *control = new Control;
    control->setReference(&host, ref, nullptr, {});
    control->updateControl(1);
    return control;
}
} // namespace

// Whether `needle` appears pixel for pixel (within a rounding step) somewhere in `haystack`.
static bool contains(const QImage &haystack, const QImage &needle)
{
    const QImage hay = haystack.convertToFormat(QImage::Format_ARGB32);
    const QImage pin = needle.convertToFormat(QImage::Format_ARGB32);
    for (int top = 0; top + pin.height() <= hay.height(); ++top) {
        for (int left = 0; left + pin.width() <= hay.width(); ++left) {
            bool same = true;
            for (int y = 0; same && y < pin.height(); ++y) {
                for (int x = 0; same && x < pin.width(); ++x) {
                    const QRgb p = pin.pixel(x, y);
                    if (qAlpha(p) < 255)
                        continue; // blended with the background
                    const QRgb h = hay.pixel(left + x, top + y);
                    same = qAbs(qRed(p) - qRed(h)) <= 2 && qAbs(qGreen(p) - qGreen(h)) <= 2 &&
                           qAbs(qBlue(p) - qBlue(h)) <= 2;
                }
            }
            if (same)
                return true;
        }
    }

    return false;
}

class TestDefaultImages : public QObject
{
    Q_OBJECT

public:
    // As a Qt 5 host for high-density screens does; Qt 6 always picks the variants.
    static void initMain()
    {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    }

private slots:
    // Every image any sheet names, in every state a control paints, loads from the default set,
    // and the set holds nothing beyond them.
    void everyImageTheSheetsName()
    {
        initDefaultImages();
        initDefaultImages();

        TestHost host;
        addImageRecords(host);
        CfgCheckBox box;
        CfgRadioButton radio;
        CfgComboBox combo;
        box.setReference(&host, 3, nullptr, {});
        radio.setReference(&host, 4, nullptr, {});
        combo.setReference(&host, 5, nullptr, {});
        QSet<QString> urls;
        for (int look = 0; look < 4; ++look) {
            host.modified = look & 1 ? QSet<int>{3, 4, 5} : QSet<int>{};
            for (QWidget *widget : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&radio),
                                    static_cast<QWidget *>(&combo)})
                widget->setEnabled(look < 2);
            box.updateControl(1);
            radio.updateControl(1);
            combo.updateControl(1);
            for (const QString &sheet : {box.styleSheet(), radio.styleSheet(), combo.styleSheet()})
                collectUrls(sheet, &urls);
        }
        QCOMPARE(urls.size(), 16);
        for (const QString &url : std::as_const(urls))
            QVERIFY2(!QImage(url).isNull(), qPrintable(url));
        // Each with its variant for a device pixel ratio of 2, and nothing else.
        QCOMPARE(QDir(QStringLiteral(":/images")).entryList().size(), 32);
    }

    void sharpAtScaleTwo_data()
    {
        // hovered: Qt 6's offscreen pointer may rest on the control
        columns<QString, QString, QString>("kind", "image", "hovered");
        row("check box", "checkbox", "checkbox_grey_checked", "checkbox_checked_hover");
        row("radio button", "radio", "radiobutton_selected_black", "radiobutton_selected_hover");
        row("combo box arrow", "combo", "arrow", "arrow");
    }

    // On a screen of device pixel ratio 2 (the suite runs again under QT_SCALE_FACTOR=2) a
    // control draws the image's sharp variant, not the small one enlarged.
    void sharpAtScaleTwo()
    {
        auto [kind, image, hovered] = fetch<QString, QString, QString>("kind", "image", "hovered");
        initDefaultImages();
        TestHost host;
        addImageRecords(host);
        std::unique_ptr<QWidget> widget;
        if (kind == QLatin1String("checkbox"))
            widget.reset(bound<CfgCheckBox>(host, 3));
        else if (kind == QLatin1String("radio"))
            widget.reset(bound<CfgRadioButton>(host, 4));
        else
            widget.reset(bound<CfgComboBox>(host, 5));
        widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
        const QImage shot = widget->grab().toImage();
        if (shot.devicePixelRatio() < 2)
            QSKIP("needs a device pixel ratio of 2 (tst_defaultimages_scale2)");
        const QImage sharp(QStringLiteral(":/images/%1@2x.png").arg(image));
        const QImage sharpHovered(QStringLiteral(":/images/%1@2x.png").arg(hovered));
        QVERIFY(!sharp.isNull() && !sharpHovered.isNull());
        QVERIFY2(contains(shot, sharp) || contains(shot, sharpHovered), qPrintable(image));
    }
};

QTEST_MAIN(TestDefaultImages)
#include "tst_defaultimages.moc"
