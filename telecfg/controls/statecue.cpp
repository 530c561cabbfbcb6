// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/statecue_p.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>
#include <cmath>

namespace statecue {
namespace {

constexpr char cueName[] = "telecfg_state_cue";
// The cue's side in pixels: a small fold for a modified value, a larger one carrying an
// exclamation mark for an invalid one, so the two differ by shape as well.
constexpr int modifiedSide = 7;
constexpr int invalidSide = 11;

// A corner of a bound control, drawn over it and transparent to the mouse.
class CueOverlay : public QWidget
{
public:
    explicit CueOverlay(QWidget *control) : QWidget(control)
    {
        setObjectName(QLatin1String(cueName));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        resize(invalidSide, invalidSide);
    }

    void show(State state)
    {
        if (state == shown && isVisible() == (state != State::Normal))
            return;
        shown = state;
        setVisible(state != State::Normal);
        if (state != State::Normal) {
            raise();
            update();
        }
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintCue(&painter, rect(), shown);
    }

private:
    State shown = State::Normal;
};

double channel(int value)
{
    const double v = value / 255.0;
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * channel(colour.red()) + 0.7152 * channel(colour.green()) +
           0.0722 * channel(colour.blue());
}

bool holdsText(const QPalette &palette, const QColor &enabled, const QColor &disabled)
{
    return palette.color(QPalette::Active, QPalette::Text) == enabled &&
           palette.color(QPalette::Inactive, QPalette::Text) == enabled &&
           palette.color(QPalette::Disabled, QPalette::Text) == disabled &&
           palette.color(QPalette::Active, QPalette::ButtonText) == enabled &&
           palette.color(QPalette::Disabled, QPalette::ButtonText) == disabled;
}

// The control's text roles, and those of the line edit inside a spin box, set readable on
// `background`. A new style sheet gives the control back its earlier palette, so this is
// checked at every refresh.
void setReadableText(QWidget *control, const QColor &background)
{
    const QColor enabled = readableText(background, false);
    const QColor disabled = readableText(background, true);
    QWidget *targets[] = {control,
                          control->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)};
    for (QWidget *target : targets) {
        if (!target || holdsText(target->palette(), enabled, disabled))
            continue;
        QPalette palette = target->palette();
        for (QPalette::ColorRole role :
             {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
            palette.setColor(QPalette::Active, role, enabled);
            palette.setColor(QPalette::Inactive, role, enabled);
            palette.setColor(QPalette::Disabled, role, disabled);
        }
        target->setPalette(palette);
    }
}

void showCue(QWidget *control, State state)
{
    auto *cue = static_cast<CueOverlay *>(
        control->findChild<QWidget *>(QLatin1String(cueName), Qt::FindDirectChildrenOnly));
    if (!cue) {
        if (state == State::Normal)
            return;
        cue = new CueOverlay(control);
    }
    cue->show(state);
}

QString plainText(QString text)
{
    if (Qt::mightBeRichText(text))
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    // Mnemonic marks go, a doubled one stands for itself.
    text.replace(QLatin1String("&&"), QString(QChar(0x1)));
    text.remove(QLatin1Char('&'));
    text.replace(QChar(0x1), QLatin1Char('&'));
    text = text.simplified();
    while (text.endsWith(QLatin1Char(':')))
        text.chop(1);
    return text.trimmed();
}

QString labelText(QWidget *control, QWidget *label)
{
    if (!label && control) {
        const QList<QLabel *> labels = control->window()->findChildren<QLabel *>();
        for (QLabel *candidate : labels)
            if (candidate->buddy() == control)
                label = candidate;
    }
    if (auto *text = qobject_cast<QLabel *>(label))
        return plainText(text->text());
    if (auto *box = qobject_cast<QGroupBox *>(label))
        return plainText(box->title());
    if (auto *button = qobject_cast<QAbstractButton *>(label))
        return plainText(button->text());
    return QString();
}

} // namespace

double contrastRatio(const QColor &a, const QColor &b)
{
    double lighter = luminance(a);
    double darker = luminance(b);
    if (lighter < darker)
        std::swap(lighter, darker);
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readableText(const QColor &background, bool disabled)
{
    const bool light = contrastRatio(Qt::black, background) >= contrastRatio(Qt::white, background);
    if (disabled) {
        // From mid grey towards the text colour, a little above the 4.5:1 a text needs, so
        // that rounding never takes it below.
        for (int grey = 0x80; grey > 0 && grey < 0xff; grey += light ? -4 : 4)
            if (contrastRatio(QColor(grey, grey, grey), background) >= 4.6)
                return QColor(grey, grey, grey);
    }
    return light ? QColor(Qt::black) : QColor(Qt::white);
}

void paintCue(QPainter *painter, const QRect &rect, State state)
{
    if (state == State::Normal)
        return;
    const int side = state == State::Invalid ? invalidSide : modifiedSide;
    const QPointF origin = rect.topLeft();
    QPainterPath fold;
    fold.moveTo(origin);
    fold.lineTo(origin + QPointF(side, 0));
    fold.lineTo(origin + QPointF(0, side));
    fold.closeSubpath();
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip); // the light edge never reaches a neighbour
    painter->setRenderHint(QPainter::Antialiasing);
    // Dark with a light edge: it stands out on a light background and on a dark one.
    painter->setPen(QPen(Qt::white, 1));
    painter->setBrush(Qt::black);
    painter->drawPath(fold);
    if (state == State::Invalid) {
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(Qt::NoPen);
        painter->setBrush(Qt::white);
        painter->drawRect(QRectF(origin + QPointF(3, 1.5), QSizeF(1.5, 3.5)));
        painter->drawRect(QRectF(origin + QPointF(3, 6), QSizeF(1.5, 1.5)));
    }
    painter->restore();
}

QString stateLine(const Presentation &presentation)
{
    switch (presentation.state) {
    case State::Normal:
        break;
    case State::Modified:
        return presentation.detail.isEmpty()
                   ? QCoreApplication::translate("StateCue", "Zmieniona")
                   : QCoreApplication::translate("StateCue", "Zmieniona, zapisana wartość: %1")
                         .arg(presentation.detail);
    case State::Invalid:
        return presentation.detail.isEmpty()
                   ? QCoreApplication::translate("StateCue", "Nieprawidłowa")
                   : QCoreApplication::translate("StateCue", "Nieprawidłowa: %1")
                         .arg(presentation.detail);
    }
    return QString();
}

void present(QWidget *control, const Presentation &presentation, Memo &memo)
{
    if (presentation.textBackground.isValid())
        setReadableText(control, presentation.textBackground);
    const QString current = control->toolTip();
    // Shared text: an unchanged tool tip is found without comparing it.
    const bool ownTip = current.isSharedWith(memo.shownToolTip) || current == memo.shownToolTip;
    if (ownTip && presentation.state == memo.state && presentation.detail == memo.detail)
        return;
    if (!ownTip)
        memo.hostToolTip = current; // set by the host (or at binding) since the last refresh
    memo.state = presentation.state;
    memo.detail = presentation.detail;
    showCue(control, presentation.cornerCue ? presentation.state : State::Normal);
    const QString line = stateLine(presentation);
    QString tip = memo.hostToolTip;
    if (!line.isEmpty())
        tip = tip.isEmpty() ? line : tip + QLatin1Char('\n') + line;
    if (tip != current)
        control->setToolTip(tip);
    memo.shownToolTip = control->toolTip();
    if (control->accessibleDescription() != tip)
        control->setAccessibleDescription(tip);
}

QString shownName(QWidget *control, QWidget *label)
{
    QString name = control || label ? labelText(control, label) : QString();
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        const QString own = plainText(button->text());
        if (name.isEmpty())
            name = own;
        else if (!own.isEmpty() && own != name)
            name += QStringLiteral(": ") + own;
    }
    return name;
}

namespace {
constexpr char namerName[] = "telecfg_label_name";

// Keeps a control's accessible name its label's text: set at binding and again at every
// change of language, when the host's forms have retranslated their labels (a window hears
// of the change before the widgets inside it). A name the host gave the control is kept.
class LabelName : public QObject
{
public:
    explicit LabelName(QWidget *control) : QObject(control), control(control)
    {
        setObjectName(QLatin1String(namerName));
        control->installEventFilter(this);
    }

    void follow(QWidget *newLabel)
    {
        label = newLabel;
        rename();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == control && event->type() == QEvent::LanguageChange)
            rename();
        return false;
    }

private:
    void rename()
    {
        const QString current = control->accessibleName();
        if (!current.isEmpty() && current != given)
            return; // the host's own
        const QString name = shownName(control, label);
        if (name.isEmpty() || name == current)
            return;
        given = name;
        control->setAccessibleName(name);
    }

    QWidget *const control;
    QPointer<QWidget> label;
    QString given;
};
} // namespace

void nameAfterLabel(QWidget *control, QWidget *label)
{
    auto *namer = static_cast<LabelName *>(
        control->findChild<QObject *>(QLatin1String(namerName), Qt::FindDirectChildrenOnly));
    if (!namer)
        namer = new LabelName(control);
    namer->follow(label);
}

QString outsideRange(const QString &minimum, const QString &maximum)
{
    return QCoreApplication::translate("StateCue", "poza zakresem %1–%2").arg(minimum, maximum);
}

QString notAMultipleOf(const QString &step)
{
    return QCoreApplication::translate("StateCue", "nie jest wielokrotnością kroku %1").arg(step);
}

QString doesNotMatchPattern()
{
    return QCoreApplication::translate("StateCue", "nie pasuje do wzorca");
}

QString tooLong(int maximum)
{
    return QCoreApplication::translate("StateCue", "za długa, najwyżej %1 znaków").arg(maximum);
}

QString blankAtEnds()
{
    return QCoreApplication::translate("StateCue", "odstęp na początku lub na końcu");
}

QString checkedWords(bool checked)
{
    return checked ? QCoreApplication::translate("StateCue", "zaznaczone")
                   : QCoreApplication::translate("StateCue", "niezaznaczone");
}

QString refusedByDevice()
{
    return QCoreApplication::translate("StateCue", "odrzucona przez urządzenie");
}

} // namespace statecue
