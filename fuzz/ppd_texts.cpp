// Texts of a PPD, in any encoding and of any bytes, shown by widgets.

#include "fuzz.h"

#include "host/conflicts/conflict_index.h"
#include "host/settings/common_settings.h"
#include "host/settings/sent_list.h"
#include "host/settings/sent_view.h"
#include "host/settings/typed_options.h"
#include "platform/ppd_file.h"
#include "platform/views/form_loader.h"
#include "platform/views/popup_view.h"
#include "platform/views/text_view.h"
#include "ppd/conflicts.h"
#include "ppd/constraint_table.h"

#include <QFormLayout>
#include <QVBoxLayout>

namespace {

/// What can stand as a text of a PPD's line.
QByteArray label(FuzzedDataProvider &input) {
    QByteArray text = takeBytes(input, 90);
    for (char &c : text)
        if (c == '\n' || c == '\r' || c == ':' || c == '\0')
            c = ' ';
    return text;
}

QByteArray ppdWith(FuzzedDataProvider &input) {
    const char *const encodings[] = {"ISOLatin1", "WindowsANSI", "MacStandard",  "JIS83-RKSJ",
                                     "UTF-8",     "None",        "ISOLatinGreek"};
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                      "*LanguageVersion: English\n*LanguageEncoding: ";
    text += input.PickValueInArray(encodings);
    text += "\n*PCFileName: \"F.PPD\"\n*Manufacturer: \"QZ\"\n*Product: \"(F)\"\n"
            "*ModelName: \"F\"\n*ShortNickName: \"F\"\n*NickName: \"F\"\n"
            "*PSVersion: \"(3010.000) 0\"\n";
    for (const QByteArray option : {"PageSize", "Duplex", "MediaType", "Code"}) {
        text += "*OpenUI *" + option + '/' + label(input) + ": PickOne\n*Default" + option +
                ": A\n*" + option + " A/" + label(input) + ": \"\"\n*" + option + " B/" +
                label(input) + ": \"\"\n*CloseUI: *" + option + '\n';
    }
    return text + "*CustomCode True: \"pop\"\n*ParamCustomCode Code/" + label(input) +
           ": 1 string 0 20\n*UIConstraints: *MediaType B *Duplex B\n";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    const PpdFile file = parsePpdFile(ppdWith(input));
    if (!file.ppd)
        return 0;
    ppd_file_t *ppd = file.ppd.get();
    ppdMarkDefaults(ppd);
    ppdMarkOption(ppd, "MediaType", "B");
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    const host::ConflictIndex conflicts(ppd);
    host::JobSettings job(ppd);
    const auto reason = [&](const QString &option, const QString &choice) {
        return conflicts.reasonAgainst(option, choice);
    };
    auto *common = new host::CommonSettings;
    host::TypedOptions typed(common->form());
    layout->addWidget(common);
    common->setSettings(&job, reason);
    typed.setOptions(ppd, {}, reason);
    auto *sent = new host::SentView;
    layout->addWidget(sent);
    sent->setRows(host::sentList({ppd, nullptr, &job}));

    hash_multimap table;
    addConstraintsOf(ppd, &table, {"MediaType", "Duplex"});
    for (const char *key : {"PageSize", "Duplex", "MediaType", "Code"}) {
        ChoiceRows rows;
        InitializeValueFromPPD(ppd, &table, &rows, key);
        auto *menu = new PopupView;
        auto *title = new TextView;
        title->setBuddy(menu);
        layout->addWidget(title);
        layout->addWidget(menu);
        for (const ChoiceRow &row : rows) {
            menu->addItemWithTitle(row.label);
            REQUIRE(menu->itemTitle(menu->numberOfItems() - 1) == row.label);
            title->setStringValue(row.label);
            REQUIRE(title->stringValue() == row.label);
        }
    }
    views::assignMnemonics(&window);
    window.grab();
    return 0;
}
