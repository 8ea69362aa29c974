#pragma once

#include "host/settings/custom_parameters.h"
#include "host/settings/length_field.h"

#include <QList>
#include <QWidget>

#include <functional>
#include <optional>

class QFormLayout;
class QLabel;

namespace host {

/// The fields for the values of one option's custom choice, shown while that choice is marked. What
/// is typed is marked at once, as far as it can be.
class CustomValues : public QWidget {
    Q_OBJECT

public:
    explicit CustomValues(QWidget *parent = nullptr);

    /// Makes the fields of an option; none for an option without a custom choice.
    /// @param ppd  borrowed; may be null
    void setOption(ppd_file_t *ppd, const QString &option);
    /// Shows the marks as they stand now. What is being typed and can't be used yet is left.
    void refresh();

    /// What the fields make, as markChoice() takes it, whether it can be used or not.
    QString choiceText() const;
    /// Why what stands in the fields can't be printed, a sentence; null where it can, and while the
    /// choice isn't marked. An empty secret is none: it is asked for when the job is printed.
    QString problem() const;

    /// Gives the keyboard to the field that has the problem, if one has.
    void showProblem();

    /// Of so many values fields are shown; further ones stay as they are.
    static constexpr int kMostFields = 20;

signals:
    /// After the values have been marked, or a problem has come or gone.
    void changed(const QString &option);

private:
    struct Field {
        CustomParameter parameter;
        QWidget *control;
        QLabel *range;
        std::function<std::optional<QString>()> read; ///< nothing for no number
        std::function<void(const QString &)> show;
    };

    void clear();
    void addField(const CustomParameter &parameter);
    void makeText(Field &field);
    void makeWholeNumber(Field &field);
    void makeNumber(Field &field);
    void makeLength(Field &field);
    void tellRange(const Field &field, const QString &words);
    bool isMarked() const;
    QList<CustomParameter> typed() const;
    void take();
    QString problemOfField(const Field &field) const;
    void tellProblem();

    ppd_file_t *m_ppd = nullptr;
    const ppd_option_t *m_option = nullptr;
    QList<CustomParameter> m_rest; ///< those without fields
    QList<Field> m_fields;
    QFormLayout *m_layout;
    QLabel *m_problem;
    bool m_showing = false;
};

} // namespace host
