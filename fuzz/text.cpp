// Every function for texts and numbers, with any argument that its contract allows.

#include "fuzz.h"

#include "platform/numbers.h"
#include "platform/utf8.h"
#include "ppd/input_filter.h"
#include "ppd/print_session.h"
#include "ppd/product_type.h"
#include "ppd/resource_names.h"
#include "ppd/text_utils.h"
#include "ppd/unit_utils.h"
#include "services/bundle_identity.h"
#include "services/date_time.h"
#include "services/identity.h"
#include "services/system_version.h"

#include <climits>
#include <memory>

namespace {

/// A NUL-ended text whose neighbours are guarded.
std::unique_ptr<char[]> guarded(const QByteArray &text) {
    std::unique_ptr<char[]> copy(new char[size_t(text.size()) + 1]);
    std::copy(text.constData(), text.constData() + text.size() + 1, copy.get());
    return copy;
}

void numbers(FuzzedDataProvider &input) {
    const int value = input.ConsumeIntegral<int>();
    const int size = input.ConsumeIntegralInRange<int>(1, 40);
    std::unique_ptr<char[]> out(new char[size_t(size)]);
    const char *digits = itoa(value, out.get(), size);
    REQUIRE(digits >= out.get() && digits < out.get() + size);
    REQUIRE(GetIntegerLength(value) == QString::number(value).size());
    ConvertIntToFloatStr(&value, out.get(), size);
    const QByteArray text = takeBytes(input, 40);
    ConvertFloatStrToInt(guarded(text).get());
    filterHeadZero(guarded(text).get());
    const auto changed = guarded(text);
    numstrtochar(changed.get(), int(strlen(changed.get())));
    leadingInteger(guarded(text).get());
    leadingDouble(guarded(text).get());
    truncatedToInt(input.ConsumeFloatingPoint<double>());
}

void texts(FuzzedDataProvider &input) {
    const QString text = takeText(input, 80);
    const QString other = takeText(input, 20);
    std::unique_ptr<unsigned short[]> units(new unsigned short[size_t(text.size()) + 1]);
    REQUIRE(RemoveAllSpaces(text, units.get()) <= text.size());
    REQUIRE(GetStringPointIndex(text) <= text.size() + 1);
    REQUIRE(GetStringPointCount(text) == text.count(u'.'));
    ExistNumericString(text);
    IsAllSpace(text);
    QStringList fields;
    getStringBySeparator(&fields, text, input.ConsumeIntegral<char>());
    AddNoRepeatStrToArray(&fields, text);
    AddNoRepeatStrToArray(&fields, other);
    REQUIRE(text.isNull() || fields.contains(text));
    REQUIRE(NSStringCreateWithCFString(text).toUtf8().size() <= 255);
    const int limit = input.ConsumeIntegral<int>();
    REQUIRE(limit < 0 || GetStringLength(GetShortenString(text, limit)) <= limit);
    GetUTF8StringLength(guarded(takeBytes(input, 40)).get());
    numCompare(text, other);
    REQUIRE(numCompare(text, text) == 0);
    pageNumCompare({text}, {other});
    pageNumCompareDict({{"a", text}}, {{"a", other}}, "a");
    ReleaseCFString(nullptr);
}

void units(FuzzedDataProvider &input) {
    std::unique_ptr<char[]> out(new char[13]);
    TransformPointByType(out.get(), input.ConsumeIntegral<int>(),
                         input.ConsumeIntegralInRange<int>(-2, 12),
                         input.ConsumeIntegralInRange<int>(-1, 2));
    const QString text = takeText(input, 40);
    TransformMillimetreToInchs(text);
    GetMillimetreFromStr(text);
}

void filters(FuzzedDataProvider &input) {
    TextEditFilterData data;
    for (InputFilterData *filter : {&data.filterFirst, &data.filterValid}) {
        filter->rangeCount = input.ConsumeIntegralInRange<int32_t>(-1, 30);
        for (auto &range : filter->ranges)
            range = {input.ConsumeIntegral<uint16_t>(), input.ConsumeIntegral<uint16_t>()};
    }
    const QString text = takeText(input, 40);
    validateInput(text, &data);
    validateDensityInput(guarded(text.toUtf8()).get(), &data);
    const unsigned short unit = input.ConsumeIntegral<unsigned short>();
    REQUIRE(ISWordValid(&unit, &data.filterValid) == ISWordSpace(&unit, &data.filterValid));
}

void names(FuzzedDataProvider &input) {
    const QByteArray value = takeBytes(input, 400);
    const int part = input.ConsumeIntegralInRange<int>(-1, 3);
    const QString name = GetAppResourceName(guarded(value).get(), part);
    REQUIRE(name == GetAppResourceNameNS(guarded(value).get(), part));
    REQUIRE(name.toUtf8().size() <= 254 * 3); // what is no UTF-8 grows
    REQUIRE(GetAppFullResourceName(name, part, "Layout_", takeText(input, 300)).size() <= 510);
    for (const QByteArray &text : {value, takeBytes(input, 40)}) {
        strictUtf8(guarded(text).get());
        wholeCharacters(text);
    }
    const auto most = input.ConsumeIntegralInRange<qsizetype>(0, 80);
    REQUIRE(cutToBytes(QString::fromUtf8(value), most).toUtf8().size() <= most);
}

void settings(FuzzedDataProvider &input) {
    PrintSettings settings;
    PrintSession session;
    const QString key = takeText(input, 40);
    const QByteArray value = takeBytes(input, 80);
    if (SetValueToSettingsWithTicketKeyAndLock(guarded(value).get(), &settings, key,
                                               input.ConsumeBool()) == kPMNoError)
        REQUIRE(!settings.find(key)->value.contains(QChar(0xFFE4)));
    SetIntegerValueToSettings(input.ConsumeIntegral<int>(), &settings, key, false);
    session.setData(key, input.ConsumeBool()
                             ? QVariant(value)
                             : QVariant(qlonglong(input.ConsumeIntegral<int64_t>())));
    int32_t number = 0;
    GetTicketFromSession(&session, key, &number);
    ppd_file_t *ppd = nullptr;
    session.setData("kPMPPDReference", value);
    GetPPDRefFromSession(&session, &ppd);
    session.setCurrentPrinter({takeText(input, 20)});
    QString text;
    SetPrinterString(&session, &text);
    CreateKeyWithCurrentPrinter(key, text, &text);
}

void machine(FuzzedDataProvider &input) {
    LongDateRec date = {};
    date.hour = input.ConsumeIntegral<int16_t>();
    date.minute = input.ConsumeIntegral<int16_t>();
    std::unique_ptr<char[]> out(new char[kDateTextSize]);
    ConvertLongDateToNSDate(&date, out.get());
    ConvertNSDateToLongDate(QDateTime::fromSecsSinceEpoch(input.ConsumeIntegral<int32_t>()), &date);
    timeZoneStringAt(QDateTime::fromSecsSinceEpoch(input.ConsumeIntegral<int32_t>()));
    GetActualTimeZoneString();
    GetActualDSTSecondOffset();
    int32_t answer = 0;
    for (const uint32_t selector : {kSelectorSysv, kSelectorSys1, kSelectorSys2, kSelectorSys3})
        Gestalt_ALT(selector, &answer);
    systemVersion();
    GetAppClientID();
    GetAppBundleRef();
    IsUserAdmin();
    const QByteArray user = input.ConsumeBool() ? QByteArray("root") : takeBytes(input, 20);
    const QByteArray group = input.ConsumeBool() ? QByteArray("users") : takeBytes(input, 20);
    checkIfAdminUser(QString::fromUtf8(user));
    isGroupMember(QString::fromUtf8(user), guarded(group).get());
    CheckUserGroups(guarded(user).get(), guarded(group).get());

    CPPDChecker *checker = CPPDChecker::Instance();
    checker->Init();
    for (const char *const *key = arrayAllKeys; *key; ++key)
        checker->AddCheck(*key, input.ConsumeBool());
    checker->RunCheck();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    constexpr void (*kGroups[])(FuzzedDataProvider &) = {numbers, texts,    units,  filters,
                                                         names,   settings, machine};
    while (input.remaining_bytes() > 0)
        input.PickValueInArray(kGroups)(input);
    return 0;
}
