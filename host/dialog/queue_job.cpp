#include "host/dialog/queue_job.h"

#include "host/presets/applied_preset.h"
#include "host/settings/cups_forms.h"
#include "host/settings/ppd_texts.h"

namespace host {
namespace {

/// Choices that make a job without colour, by the keyword of the option.
struct GreyChoices {
    const char *option;
    QList<const char *> choices; ///< empty for the second of two
};

const QList<GreyChoices> &greyChoices() {
    static const QList<GreyChoices> table = {
        {"QZColorMode", {}},
        {"ColorModel", {"Gray", "Grayscale", "Black", "KGray"}},
    };
    return table;
}

bool isGrey(ppd_file_t *ppd, const GreyChoices &grey) {
    const ppd_option_t *option = findOption(ppd, QLatin1String(grey.option));
    const ppd_choice_t *marked = option ? markedChoice(*option) : nullptr;
    if (!marked)
        return false;
    if (grey.choices.isEmpty())
        return option->num_choices > 1 && marked == &option->choices[1];
    return std::any_of(grey.choices.begin(), grey.choices.end(),
                       [&](const char *choice) { return qstricmp(choice, marked->choice) == 0; });
}

} // namespace

QueueJob::QueueJob(QueueDetails details, PDEPlugin &plugin, bool toFile)
    : m_stage(std::move(details.source), plugin), m_serverDefaults(details.serverDefaults),
      m_userOptions(std::move(details.userOptions)), m_toFile(toFile) {
    useDefaults();
}

QStringList QueueJob::instances() const {
    return m_userOptions.instancesOf(m_stage.source().printer.id);
}

QStringList QueueJob::useDefaults(const QString &instance) {
    m_stage.startAnew();
    if (ppd())
        ppdMarkDefaults(ppd());
    const OptionList own = m_userOptions.of(queue(), instance);
    m_settings.emplace(ppd(), m_serverDefaults, own);
    m_settings->setToFile(m_toFile);
    QStringList problems = m_userOptions.problems;
    m_settings->takeOptions(m_serverDefaults); // what CUPS adds by itself needn't be sent
    m_others = m_settings->takeOptions(own, &problems);
    return problems;
}

QStringList QueueJob::use(const Preset &preset) {
    useDefaults();
    QStringList problems = applyPreset(preset, ppd(), *m_stage.callback().printSettings());
    OptionList options;
    for (auto option = preset.jobOptions.begin(); option != preset.jobOptions.end(); ++option)
        options.append({option.key(), option.value()});
    m_others += m_settings->takeOptions(options, &problems);
    return problems;
}

Preset QueueJob::preset() const {
    QMap<QString, QString> options;
    for (const auto &[name, value] : m_others + m_settings->jobOptions())
        options.insert(name, value);
    return presetOf(ppd(), queue(), m_stage.callback().settings(), options);
}

ToSend QueueJob::toSend() const {
    return {ppd(), &m_stage.callback().settings(), &*m_settings, m_others, m_serverDefaults};
}

SheetOptions QueueJob::sheet() const {
    SheetOptions sheet;
    if (const ppd_size_t *size = ppd() ? ppdPageSize(ppd(), nullptr) : nullptr) {
        sheet.paper = QSizeF(size->width, size->length);
        // A PPD measures from the lower left corner.
        sheet.imageable = QRectF(QPointF(size->left, size->length - size->top),
                                 QPointF(size->right, size->length - size->bottom));
    }
    if (const ppd_option_t *duplex = m_settings->ppdOption(Setting::Sides))
        if (const ppd_choice_t *marked = markedChoice(*duplex))
            sheet.sides = sidesOf(*marked);
    sheet.grey = printsGrey();
    if (m_toFile)
        return sheet; // which has the pages as they are
    sheet.orientation = m_settings->value(Setting::Orientation).toInt();
    sheet.numberUp = m_settings->value(Setting::NumberUp).toInt();
    sheet.pageRanges = m_settings->value(Setting::Pages);
    return sheet;
}

bool QueueJob::printsGrey() const {
    return std::any_of(greyChoices().begin(), greyChoices().end(),
                       [this](const GreyChoices &grey) { return isGrey(ppd(), grey); });
}

} // namespace host
