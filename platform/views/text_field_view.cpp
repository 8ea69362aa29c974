#include "platform/views/text_field_view.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QValidator>

#include <limits>

TextFormatter::~TextFormatter() = default;

/// Puts each new text to the formatter. Never answers Intermediate, with which Return would not end
/// editing; the text that already stands in the field is fine without a question, since Qt asks
/// again at Return and at each loss of focus.
class TextFieldView::Validator : public QValidator {
public:
    explicit Validator(TextFieldView *field) : QValidator(field), m_field(field) {}

    State validate(QString &input, int &position) const override {
        if (!m_field->m_formatter || input == m_field->m_accepted)
            return Acceptable;
        const std::shared_ptr<TextFormatter> formatter = m_field->m_formatter;
        QString replacement;
        QString error;
        if (!formatter->isPartialStringValid(input, &replacement, &error))
            return Invalid;
        if (!replacement.isNull() && replacement != input) {
            input = replacement;
            position = static_cast<int>(qMin<qsizetype>(position, input.size()));
        }
        m_field->m_accepted = input;
        return Acceptable;
    }

private:
    TextFieldView *m_field;
};

TextFieldView::TextFieldView(QWidget *parent)
    : QLineEdit(parent), m_settled(QStringLiteral("")), m_accepted(m_settled) {
    setMaxLength(std::numeric_limits<int>::max()); // Qt counts units; lengths are the formatter's
    setValidator(new Validator(this));
    connect(this, &QLineEdit::textEdited, this, [this] { m_pending = true; });
    connect(this, &QLineEdit::returnPressed, this, &TextFieldView::endEditing);
}

TextFieldView::~TextFieldView() {
    m_committing = true; // losing the focus while going is no end of an edit
}

void TextFieldView::setFormatter(std::shared_ptr<TextFormatter> formatter) {
    m_formatter = std::move(formatter);
}

void TextFieldView::setStringValue(const QString &text) {
    m_pending = false;
    m_settled = text.isNull() ? QStringLiteral("") : text;
    show(m_settled);
}

void TextFieldView::show(const QString &text) {
    m_accepted = text;
    if (text != QLineEdit::text())
        setText(text);
}

void TextFieldView::endEditing() {
    if (!m_pending || m_committing)
        return;
    m_pending = false;
    m_committing = true;
    const QPointer<TextFieldView> self(this);
    const std::shared_ptr<TextFormatter> formatter = m_formatter;
    const QString typed = text();
    m_settled = typed;
    QString object;
    QString error;
    if (formatter && formatter->getObjectValue(&object, typed, &error) && self) {
        const QString shown = formatter->stringForObjectValue(object);
        if (self && !shown.isNull())
            setStringValue(shown);
    }
    if (self)
        sendAction();
    if (self)
        m_committing = false;
}

void TextFieldView::dropPendingEdit() {
    if (m_pending)
        setStringValue(m_settled);
}

void TextFieldView::becomeFirstResponder() {
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

bool TextFieldView::typeText(const QString &text) {
    if (!views::isUsable(this) || isReadOnly())
        return false;
    const QPointer<TextFieldView> self(this);
    const auto press = [&self](int key, const QString &typed) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (!self)
                return;
            QKeyEvent event(type, key, Qt::NoModifier, typed);
            QCoreApplication::sendEvent(self, &event);
        }
    };
    becomeFirstResponder(); // which may end the edit of another field
    if (!self || !views::isUsable(this))
        return false;
    if (text.isEmpty())
        press(Qt::Key_Backspace, QString());
    for (qsizetype i = 0; i < text.size() && self; ++i) {
        QString typed(text[i]);
        if (text[i].isHighSurrogate() && i + 1 < text.size())
            typed += text[++i];
        press(typed.size() == 1 && typed[0] > u' ' ? typed[0].toUpper().unicode() : 0, typed);
    }
    if (self)
        endEditing();
    return true;
}

void TextFieldView::focusOutEvent(QFocusEvent *event) {
    const QPointer<TextFieldView> self(this);
    QLineEdit::focusOutEvent(event);
    switch (event->reason()) {
    case Qt::ActiveWindowFocusReason: // the person comes back to the edit
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return;
    default:
        if (self && isEnabled() && isVisible()) // hiding and disabling move the focus too
            endEditing();
    }
}
