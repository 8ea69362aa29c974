#include "host/settings/custom_values.h"

#include "host/settings/number_field.h"
#include "host/settings/ppd_texts.h"
#include "host/settings/text_fields.h"
#include "host/words.h"
#include "platform/views/text_view.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

namespace host {
namespace {

QLabel *plainLabel() {
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

CustomValues::CustomValues(QWidget *parent)
    : QWidget(parent), m_layout(new QFormLayout(this)), m_problem(plainLabel()) {
    m_layout->setContentsMargins({});
    m_problem->setObjectName(QStringLiteral("customProblem"));
    m_problem->setParent(this);
    m_problem->hide();
    hide();
}

void CustomValues::clear() {
    m_fields.clear();
    m_rest.clear();
    m_layout->removeWidget(m_problem);
    while (m_layout->rowCount() > 0)
        m_layout->removeRow(0);
}

void CustomValues::setOption(ppd_file_t *ppd, const QString &option) {
    clear();
    m_ppd = ppd;
    m_option = findOption(ppd, option);
    const QList<CustomParameter> parameters = customParameters(ppd, option);
    for (const CustomParameter &parameter : parameters) {
        if (m_fields.size() < kMostFields)
            addField(parameter);
        else
            m_rest.append(parameter);
    }
    if (!m_rest.isEmpty()) {
        QLabel *more = plainLabel();
        more->setText(
            HostWords::tr("There are %1 more values, which stay as they are.").arg(m_rest.size()));
        m_layout->addRow(more);
    }
    m_layout->addRow(m_problem);
    refresh();
}

void CustomValues::addField(const CustomParameter &parameter) {
    Field field{parameter, nullptr, plainLabel(), {}, {}};
    if (parameter.isText())
        makeText(field);
    else if (parameter.isWholeNumber())
        makeWholeNumber(field);
    else if (parameter.type == PPD_CUSTOM_POINTS)
        makeLength(field);
    else
        makeNumber(field);
    field.control->setObjectName(QStringLiteral("custom.") + QString::fromUtf8(m_option->keyword) +
                                 u'.' + QString::fromUtf8(parameter.name));
    auto *label = new TextView;
    QWidget *focused = field.control->focusProxy() ? field.control->focusProxy() : field.control;
    label->setBuddy(focused);
    label->setStringValue(HostWords::tr("%1:").arg(parameter.text));
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(field.control, 0, field.parameter.isText() ? Qt::Alignment() : Qt::AlignLeft);
    column->addWidget(field.range);
    m_layout->addRow(label, column);
    m_fields.append(field);
}

void CustomValues::tellRange(const Field &field, const QString &words) {
    field.range->setText(words);
    QWidget *focused = field.control->focusProxy() ? field.control->focusProxy() : field.control;
    focused->setAccessibleDescription(words);
}

void CustomValues::makeText(Field &field) {
    const CustomParameter &parameter = field.parameter;
    auto *edit = parameter.isSecret() ? new SecretField(parameter) : new QLineEdit;
    field.control = edit;
    field.read = [edit] { return edit->text(); };
    field.show = [edit](const QString &value) {
        if (edit->text() != value)
            edit->setText(value);
    };
    if (parameter.isSecret())
        edit->setPlaceholderText(HostWords::tr("Asked when you print"));
    tellRange(
        field,
        parameter.least > 0
            ? HostWords::tr("%1 to %2 characters").arg(parameter.least).arg(parameter.greatest)
            : HostWords::tr("at most %1 characters").arg(parameter.greatest));
    connect(edit, &QLineEdit::textChanged, this, &CustomValues::take);
}

void CustomValues::makeWholeNumber(Field &field) {
    auto *spin = new QSpinBox;
    spin->setRange(int(field.parameter.least), int(field.parameter.greatest));
    field.control = spin;
    field.read = [spin]() -> std::optional<QString> {
        return spin->hasAcceptableInput() ? std::optional(QString::number(spin->value()))
                                          : std::nullopt;
    };
    field.show = [spin](const QString &value) {
        if (spin->value() != value.toInt()) // else what is being typed stays
            spin->setValue(value.toInt());
    };
    tellRange(field, HostWords::tr("from %1 to %2")
                         .arg(spin->locale().toString(spin->minimum()),
                              spin->locale().toString(spin->maximum())));
    watchNumber(spin, this, [this] { take(); });
}

void CustomValues::makeNumber(Field &field) {
    auto *spin = new NumberField;
    const CustomParameter parameter = field.parameter;
    spin->setRange(parameter.least, parameter.greatest);
    spin->setSingleStep(qBound(0.01, (parameter.greatest - parameter.least) / 100, 1.0));
    field.control = spin;
    field.read = [spin, parameter]() -> std::optional<QString> {
        return spin->hasAcceptableInput() ? std::optional(nearestValue(parameter, spin->value()))
                                          : std::nullopt;
    };
    field.show = [spin, parameter](const QString &value) {
        if (nearestValue(parameter, spin->value()) != value)
            spin->setValue(value.toDouble());
    };
    tellRange(field, HostWords::tr("from %1 to %2")
                         .arg(spin->textFromValue(parameter.least),
                              spin->textFromValue(parameter.greatest)));
    watchNumber(spin, this, [this] { take(); });
}

void CustomValues::makeLength(Field &field) {
    const CustomParameter parameter = field.parameter;
    auto *length = new LengthField(parameter.least, parameter.greatest);
    length->setPoints(parameter.value.toDouble());
    field.control = length;
    field.read = [length, parameter]() -> std::optional<QString> {
        return length->hasUsableInput() ? std::optional(nearestValue(parameter, length->points()))
                                        : std::nullopt;
    };
    field.show = [length, parameter](const QString &value) {
        if (nearestValue(parameter, length->points()) != value)
            length->setPoints(value.toDouble());
    };
    tellRange(field, length->rangeText());
    connect(length, &LengthField::edited, this, &CustomValues::take);
    connect(length, &LengthField::unitChanged, this, [this](LengthUnit unit) {
        for (const Field &each : std::as_const(m_fields))
            if (auto *other = qobject_cast<LengthField *>(each.control)) {
                other->setUnit(unit); // one unit for all, as people think of a sheet
                tellRange(each, other->rangeText());
            }
    });
}

bool CustomValues::isMarked() const {
    const ppd_choice_t *custom =
        m_option ? findChoice(*m_option, QStringLiteral("Custom")) : nullptr;
    return custom && custom->marked;
}

QList<CustomParameter> CustomValues::typed() const {
    QList<CustomParameter> parameters;
    for (const Field &field : m_fields) {
        parameters.append(field.parameter);
        parameters.last().value = field.read().value_or(field.parameter.value);
    }
    return parameters + m_rest;
}

QString CustomValues::choiceText() const {
    return m_option ? customChoice(*m_option, typed()) : QString();
}

QString CustomValues::problemOfField(const Field &field) const {
    const CustomParameter &parameter = field.parameter;
    const auto value = field.read();
    if (!value)
        return HostWords::tr("“%1” must be a number %2.").arg(parameter.text, field.range->text());
    if (parameter.isSecret() && value->isEmpty())
        return {};
    // Several values travel as a list in braces, whose reader takes those of texts for its own.
    if (parameter.isText() && m_fields.size() > 1 &&
        (value->contains(u'{') || value->contains(u'}')))
        return HostWords::tr("“%1” can't have braces in it.").arg(parameter.text);
    return problemOf(parameter, *value);
}

QString CustomValues::problem() const {
    if (!isMarked())
        return {};
    for (const Field &field : m_fields)
        if (const QString fault = problemOfField(field); !fault.isNull())
            return fault;
    return {};
}

void CustomValues::showProblem() {
    for (const Field &field : std::as_const(m_fields))
        if (isMarked() && !problemOfField(field).isNull())
            return field.control->setFocus();
}

void CustomValues::take() {
    if (m_showing || !isMarked())
        return;
    if (problem().isNull())
        markCustom(m_ppd, *m_option, typed());
    tellProblem();
    emit changed(QString::fromUtf8(m_option->keyword));
}

void CustomValues::tellProblem() {
    const QString words = problem();
    m_problem->setText(words);
    m_problem->setVisible(!words.isEmpty());
}

void CustomValues::refresh() {
    setVisible(isMarked() && !m_fields.isEmpty());
    if (!isMarked())
        return;
    const QList<CustomParameter> now =
        customParameters(m_ppd, QString::fromUtf8(m_option->keyword));
    if (problem().isNull()) {
        const QScopedValueRollback<bool> showing(m_showing, true);
        for (qsizetype i = 0; i < m_fields.size() && i < now.size(); ++i) {
            m_fields[i].parameter.value = now[i].value;
            m_fields[i].show(now[i].value);
        }
    }
    // What libcups starts with may lie beyond the limits; the values that are shown are printed.
    if (problem().isNull())
        markCustom(m_ppd, *m_option, typed());
    tellProblem();
}

} // namespace host
