#include "tools/entry_words.h"

#include "platform/command_error.h"
#include "ppd/conflicts.h"
#include "ppd/ppd_query.h"

#include <algorithm>
#include <string>

namespace cdf {
namespace {

/// The option and choice that a key names, spelled just so, as the panel asks for them.
ForbiddingChoice choiceOfKey(ppd_file_t *ppd, std::string_view key) {
    const size_t colon = key.find(':');
    if (colon == std::string_view::npos)
        return {};
    const std::string keyword(key.substr(0, colon));
    const ppd_option_t *option = ppdFindOption(ppd, keyword.c_str());
    if (!option || keyword != option->keyword)
        return {};
    const auto end = option->choices + option->num_choices;
    const auto choice = std::find_if(option->choices, end, [&](const ppd_choice_t &candidate) {
        return key.substr(colon + 1) == candidate.choice;
    });
    return choice == end ? ForbiddingChoice{} : ForbiddingChoice{option, choice};
}

} // namespace

QString printable(std::string_view text) {
    return ::printable(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

QString entriesText(uint64_t count) {
    return count == 1 ? QStringLiteral("1 entry") : QStringLiteral("%1 entries").arg(count);
}

EntryWords::EntryWords(ppd_file_t *ppd) : m_ppd(ppd) {
    if (ppd)
        GetCFStringEncodingFromPPD(ppd, &m_encoding);
}

QString EntryWords::label(const ppd_option_t &option, const ppd_choice_t &choice) const {
    return QStringLiteral("%1 \"%2\"")
        .arg(::printable(labelOr(option.text, m_encoding, option.keyword)),
             ::printable(labelOr(choice.text, m_encoding, choice.choice)));
}

QString EntryWords::operator()(std::string_view key, x_constraints place) const {
    const QString indices = QStringLiteral("group %1, option %2, choice %3")
                                .arg(place.groupIndex)
                                .arg(place.optionIndex)
                                .arg(place.choiceIndex);
    if (!m_ppd)
        return sentence(indices, {}, key);
    const ForbiddingChoice forbidding = forbiddingChoice(*m_ppd, place);
    if (!forbidding.choice)
        return sentence(indices + QStringLiteral(" (outside the PPD)"), {}, key);
    return sentence(
        label(*forbidding.option, *forbidding.choice),
        printable(forbidding.option->keyword) + u':' + printable(forbidding.choice->choice), key);
}

QString EntryWords::operator()(std::string_view key, std::string_view unreadable) const {
    return sentence(QStringLiteral("\"%1\" (no three numbers)").arg(printable(unreadable)), {},
                    key);
}

QString EntryWords::sentence(const QString &subject, const QString &subjectKey,
                             std::string_view key) const {
    QString object =
        key.empty() ? QStringLiteral("nothing (an entry without a key)") : printable(key);
    QString keys = subjectKey;
    if (m_ppd && !key.empty()) {
        const ForbiddingChoice forbidden = choiceOfKey(m_ppd, key);
        if (forbidden.choice) {
            keys += (keys.isEmpty() ? QString() : QStringLiteral(", ")) + object;
            object = label(*forbidden.option, *forbidden.choice);
        } else {
            object += QStringLiteral(" (not in the PPD)");
        }
    }
    return subject + QStringLiteral(" forbids ") + object +
           (keys.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(keys));
}

} // namespace cdf
