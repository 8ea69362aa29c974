#include "check/rules.h"

#include "ppd/panel_options.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"
#include "ppd/resource_names.h"
#include "ppd/text_utils.h"

#include <QStringList>

#include <optional>

namespace check {
namespace {

constexpr int kLabelBytes = 80; ///< of which libcups keeps no more
constexpr int kTitleCells = 32; ///< what the layouts have room for
constexpr int kChoiceCells = 40;

const char *const kCheckBoxes[] = {kPPDColorBalanceAdjustmentKey, kPPDBlackOverPrintKey,
                                   KPPDInvalidateColorProfile};

QString text(const char *bytes) {
    return QString::fromUtf8(bytes);
}

template <typename Do>
void eachOption(ppd_file_t *ppd, Do act) {
    for (int g = 0; g < ppd->num_groups; ++g)
        for (int o = 0; o < ppd->groups[g].num_options; ++o)
            act(ppd->groups[g].options[o]);
}

/// An option of the panel, by exactly its keyword.
const ppd_option_t *find(ppd_file_t *ppd, const char *key) {
    const ppd_option_t *option = ppdFindOption(ppd, key);
    return option && qstrcmp(option->keyword, key) == 0 ? option : nullptr;
}

bool hasChoice(const ppd_option_t &option, const char *keyword) {
    for (int i = 0; i < option.num_choices; ++i)
        if (qstrcmp(option.choices[i].choice, keyword) == 0)
            return true;
    return false;
}

void checkBox(const Subject &subject, const ppd_option_t &option) {
    const QString keyword = text(option.keyword);
    if (option.num_choices != 2 || !hasChoice(option, "True") || !hasChoice(option, "False"))
        subject.problem(
            "check-box-choices", subject.lines.ofOption(option.keyword),
            QStringLiteral("The choices of the check box %1 aren't True and False.").arg(keyword),
            QStringLiteral("Give it the two choices False and True, in this order."));
    else if (qstrcmp(option.choices[0].choice, "True") == 0)
        subject.note("check-box-true-first", subject.lines.ofOption(option.keyword),
                     QStringLiteral("%1 lists True first: a save marks the opposite of what the "
                                    "check box shows.")
                         .arg(keyword),
                     QStringLiteral("List False first."));
}

void checkDensity(const Subject &subject, const ppd_option_t &option) {
    std::optional<int> before;
    for (int i = 0; i < option.num_choices; ++i) {
        bool isNumber = false;
        const int value = text(option.choices[i].choice).toInt(&isNumber);
        const int line = subject.lines.ofChoice(option.keyword, option.choices[i].choice);
        if (!isNumber)
            return subject.problem("density-number", line,
                                   QStringLiteral("The choice %1 of %2 is no number.")
                                       .arg(text(option.choices[i].choice), text(option.keyword)),
                                   QStringLiteral("Name the choices by their density, 3 to -3."));
        if (before && value >= *before)
            return subject.problem("density-order", line,
                                   QStringLiteral("The choice %1 of %2 is out of order.")
                                       .arg(text(option.choices[i].choice), text(option.keyword)),
                                   QStringLiteral("List the choices from the greatest down."));
        before = value;
    }
}

void checkLabel(const Subject &subject, int line, const char *label, unsigned int encoding,
                const QString &what, int cells) {
    const QString shown = decodePpdText(label, encoding);
    if (shown.contains(QChar::ReplacementCharacter))
        subject.problem("label-encoding", line,
                        QStringLiteral("The text of %1 isn't in the encoding that the PPD "
                                       "declares.")
                            .arg(what),
                        QStringLiteral("Write it in the encoding of *LanguageEncoding."));
    else if (qstrlen(label) >= kLabelBytes)
        subject.problem(
            "label-cut", line,
            QStringLiteral("The text of %1 is cut: libcups keeps 80 bytes of it.").arg(what),
            QStringLiteral("Make it shorter; other letters than A to Z count double "
                           "or more."));
    else if (GetStringLength(shown) > cells)
        subject.note(
            "label-clipped", line,
            QStringLiteral("The text of %1 is wider than the layouts have room for.").arg(what),
            QStringLiteral("Keep it within %1 letters.").arg(cells));
}

} // namespace

bool wantsPanel(ppd_file_t *ppd) {
    return findVendorAttribute(ppd, kQZProductTypeImageOptions) != nullptr;
}

void checkDefaults(const Subject &subject) {
    eachOption(subject.ppd, [&](const ppd_option_t &option) {
        const QString keyword = text(option.keyword);
        const QByteArray name = QByteArray("Default") + option.keyword;
        const int line = subject.lines.ofAttribute(name);
        if (option.num_choices == 0)
            subject.problem("no-choices", subject.lines.ofOption(option.keyword),
                            QStringLiteral("%1 has no choices.").arg(keyword),
                            QStringLiteral("Give it choices, or leave the option out."));
        else if (line == 0)
            subject.problem("no-default", subject.lines.ofOption(option.keyword),
                            QStringLiteral("%1 has no default.").arg(keyword),
                            QStringLiteral("Add *Default%1 with one of its choices.").arg(keyword));
        else if (!hasChoice(option, option.defchoice))
            subject.problem("default-missing", line,
                            QStringLiteral("The default of %1, %2, is none of its choices.")
                                .arg(keyword, text(option.defchoice)),
                            QStringLiteral("Name a choice, spelled as it is."));
    });
}

void checkProductType(const Subject &subject) {
    if (!wantsPanel(subject.ppd))
        return;
    CPPDChecker::Pattern found;
    for (const char *const *key = arrayAllKeys; *key; ++key)
        found[*key] = GetPPDKeyOptionCount(subject.ppd, *key) > 0;
    const CPPDChecker checker(arrayAllKeys, graphicsPTList);
    QStringList nearest;
    qsizetype fewest = -1;
    int nearestType = 0;
    for (const auto &[type, pattern] : checker.types) {
        QStringList differences;
        for (const auto &[key, isThere] : pattern)
            if (found[key] != isThere)
                differences.append(
                    (isThere ? QStringLiteral("%1 is missing") : QStringLiteral("%1 is too much"))
                        .arg(QString::fromStdString(key)));
        if (fewest < 0 || differences.size() < fewest) {
            fewest = differences.size();
            nearest = differences;
            nearestType = type;
        }
    }
    if (fewest > 0)
        subject.problem("product-type", subject.lines.ofAttribute(kQZProductTypeImageOptions),
                        QStringLiteral("The options are those of no product type. The nearest is "
                                       "type %1: %2.")
                            .arg(nearestType)
                            .arg(nearest.join(QStringLiteral(", "))),
                        QStringLiteral("Add or leave out what is told."));
}

void checkLists(const Subject &subject) {
    if (!wantsPanel(subject.ppd))
        return;
    for (const char *key : kCheckBoxes)
        if (const ppd_option_t *option = find(subject.ppd, key))
            checkBox(subject, *option);
    for (const char *key : kPanelOptionKeys)
        if (const ppd_option_t *option = find(subject.ppd, key);
            option && QByteArrayView(key).startsWith("QZColorDensity"))
            checkDensity(subject, *option);
    if (const ppd_option_t *option = find(subject.ppd, kPPDBrightnessKey);
        option && option->num_choices > 0 && option->num_choices % 2 == 0)
        subject.note("brightness-rows", subject.lines.ofOption(option->keyword),
                     QStringLiteral("%1 has an even number of choices: the slider has one position "
                                    "more, which marks nothing.")
                         .arg(text(option->keyword)),
                     QStringLiteral("Give it as many choices above the middle as below."));
    if (const ppd_option_t *option = find(subject.ppd, kPPDRGBColorCorrectionKey)) {
        const int line = subject.lines.ofOption(option->keyword);
        if (!hasChoice(*option, "None"))
            subject.problem("rgb-none", line,
                            QStringLiteral("%1 has no choice None, which the image types without a "
                                           "correction need.")
                                .arg(text(option->keyword)),
                            QStringLiteral("Add None as its first choice."));
        else if (qstrcmp(option->defchoice, "None") == 0)
            subject.problem("rgb-default", line,
                            QStringLiteral("The default of %1 is None.").arg(text(option->keyword)),
                            QStringLiteral("Choose another default; the panel marks None itself."));
    }
    if (const ppd_attr_t *mailbox = findVendorAttribute(subject.ppd, kQZMailboxSetting)) {
        const QString mode = text(mailbox->value).mid(4);
        const ppd_option_t *option = find(subject.ppd, kPPDOutputModeKey);
        if (!option || !hasChoice(*option, mode.toUtf8().constData()))
            subject.problem("mailbox-mode", subject.lines.ofAttribute(kQZMailboxSetting),
                            QStringLiteral("What stands behind the first four letters of \"%1\" is "
                                           "no choice of %2.")
                                .arg(text(mailbox->value), QLatin1String(kPPDOutputModeKey)),
                            QStringLiteral("Name the output mode of mailbox jobs there."));
    }
    if (find(subject.ppd, KPPDInvalidateColorProfile)) {
        bool isAlone = true;
        for (const char *key : {kPPDRGBInputProfileKey, kPPDRGBGammaCorrectionKey,
                                kPPDColorTemperatureKey, kPPDTargetPaperKey, kPPDBlackOverPrintKey})
            isAlone &= !find(subject.ppd, key);
        if (isAlone)
            subject.problem("profile-alone", subject.lines.ofOption(KPPDInvalidateColorProfile),
                            QStringLiteral("%1 is the only option of the image adjustment window, "
                                           "whose button opens nothing then.")
                                .arg(QLatin1String(KPPDInvalidateColorProfile)),
                            QStringLiteral("Leave it out, or add another option of that window."));
    }
}

void checkLabels(const Subject &subject) {
    unsigned int encoding = 0;
    GetCFStringEncodingFromPPD(subject.ppd, &encoding);
    for (const char *key : kPanelOptionKeys) {
        const ppd_option_t *option = find(subject.ppd, key);
        if (!option)
            continue;
        checkLabel(subject, subject.lines.ofOption(key), option->text, encoding, text(key),
                   kTitleCells);
        for (int i = 0; i < option->num_choices; ++i)
            checkLabel(subject, subject.lines.ofChoice(key, option->choices[i].choice),
                       option->choices[i].text, encoding,
                       text(key) + u' ' + text(option->choices[i].choice), kChoiceCells);
    }
}

} // namespace check
