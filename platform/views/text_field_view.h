#pragma once

#include "platform/views/text_formatter.h"
#include "platform/views/view.h"

#include <QLineEdit>

#include <memory>

/// A field for one line of text, with an optional formatter.
///
/// A person's edit is pending until it ends: by Return, by loss of the focus to another view, or by
/// endEditing(). It is then committed: the formatter turns the text into an object, the object's
/// text goes into the field, and the action is sent. Nothing else commits: not a text that the
/// program sets, not hiding or disabling the field, during which a pending edit stays as it is.
class PDE_PLATFORM_EXPORT TextFieldView : public QLineEdit, public views::ActionSource {
    Q_OBJECT
public:
    explicit TextFieldView(QWidget *parent = nullptr);
    ~TextFieldView() override;

    /// Sets the formatter; null for none.
    void setFormatter(std::shared_ptr<TextFormatter> formatter);
    TextFormatter *formatter() const { return m_formatter.get(); }

    /// @return the text as it stands in the field, a pending edit too; never null
    QString stringValue() const { return text(); }
    /// Sets the text, without asking the formatter, and drops a pending edit.
    void setStringValue(const QString &text);
    /// Commits a pending edit; without one it does nothing.
    void endEditing();
    bool hasPendingEdit() const { return m_pending; }
    /// Gives a pending edit up: the text from before it comes back, and nothing is sent.
    void dropPendingEdit();
    /// Takes the focus and selects the text.
    void becomeFirstResponder();
    /// What a person does: selects all, types the text key by key, and ends editing. A key that the
    /// formatter refuses leaves no trace; an empty text deletes.
    /// @return false, with nothing done, if the view is disabled, hidden or read-only
    bool typeText(const QString &text);

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    class Validator;

    void show(const QString &text);

    std::shared_ptr<TextFormatter> m_formatter;
    QString m_settled;  ///< the text that was set or committed last
    QString m_accepted; ///< the text that needs no question to the formatter
    bool m_pending = false;
    bool m_committing = false;
};
