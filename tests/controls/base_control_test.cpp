#include "panel_fixture.h"

#include "platform/preferences.h"
#include "services/ticket_encoder.h"

namespace {

class BaseControlTest : public PanelTest {
protected:
    void SetUp() override {
        open("");
        control = recorder(7, "c");
        control->setAccess(&access);
    }
    QString ticket() const { return host->settings.find("ticket.key")->value; }

    const CtrlAccessInfo access{.ticketKey = "ticket.key", .preferenceKey = "Pref"};
    RecordingControl *control = nullptr;
};

TEST_F(BaseControlTest, TicketValueIsEscapedWhereItHasSpecialCharacters) {
    // clang-format off
    const std::pair<QByteArray, QString> rows[] = {
        {"", ""},
        {"a/b", "a/b"},
        {"/a", "/47/97"},
        {"a,b", "/97/44/98"},
        {"it's", "/105/116/39/115"},
        {"a\\", "/97/92"},
        {"\xC3\xA9,", "/195/169/44"},
        {"p\xEF\xBF\xA4q\xEF\xBF\xA4", "p|q|"},
        {QByteArray(255, 'x'), QString(255, 'x')},
    };
    // clang-format on
    for (const auto &[value, expected] : rows) {
        control->setValue(value);
        EXPECT_TRUE(save(control)) << value.constData();
        EXPECT_EQ(ticket(), expected);
    }
    control->setAccess(nullptr);
    EXPECT_FALSE(save(control) || control->SetValueToTicketWithVLTEnc(&host->settings, false));
}

TEST_F(BaseControlTest, EncryptsForViewsOfTheArrayUpTo189Bytes) {
    control->setValue("secret");
    QWidget same, other;
    same.setProperty("tag", 7);
    EXPECT_TRUE(control->SetValueToTicketEncryptArray(&host->settings, true, {&other}));
    EXPECT_EQ(ticket(), "secret");
    host->settings = PrintSettings();
    EXPECT_TRUE(control->SetValueToTicketEncryptArray(&host->settings, true, {&other, &same}));
    EXPECT_TRUE(host->settings.find("ticket.key")->locked);

    const QByteArray encoded = ticket().toLatin1();
    unsigned char scrambled[64], plain[64];
    int32_t length = 0, plainLength = 0;
    ASSERT_EQ(VLTB64ToBin(reinterpret_cast<const unsigned char *>(encoded.constData()),
                          static_cast<int32_t>(encoded.size()), scrambled, &length, 64),
              0);
    ASSERT_EQ(VLTEncrypt(scrambled, length, plain, &plainLength, 64), 0);
    EXPECT_EQ(QByteArray(reinterpret_cast<char *>(plain), plainLength), "secret");

    host->settings = PrintSettings();
    control->setValue(QByteArray(189, 'x'));
    EXPECT_TRUE(control->SetValueToTicketWithVLTEnc(&host->settings, false));
    const QString before = ticket();
    control->setValue(QByteArray(190, 'x'));
    EXPECT_FALSE(control->SetValueToTicketWithVLTEnc(&host->settings, false));
    EXPECT_EQ(ticket(), before) << "a value that doesn't fit leaves the former entry";
}

TEST_F(BaseControlTest, PreferencesLiveWithThePrinterOnOlderSystemsOnly) {
    using namespace preferences;
    CFPreferencesSetValue("QueuePref", QString(), kCFPreferencesAnyApplication,
                          kCFPreferencesCurrentUser, kCFPreferencesCurrentHost);
    control->setValue("7");
    for (const char *release : {"19.6.0", "10.8.0"}) {
        setKernelRelease(release);
        const bool kept = release[1] == '0';
        EXPECT_FALSE(control->GetValueFromPreference()) << "nothing stored yet";
        EXPECT_TRUE(control->SetValueToPreference());
        EXPECT_EQ(CFPreferencesCopyValue("QueuePref", kCFPreferencesAnyApplication,
                                         kCFPreferencesCurrentUser, kCFPreferencesCurrentHost),
                  kept ? "7" : QString());
        EXPECT_EQ(control->GetValueFromPreference(), kept);
    }
    control->setValue("0");
    EXPECT_TRUE(control->GetValueFromPreference());
    EXPECT_EQ(control->value(), "7");
    EXPECT_TRUE(control->SetValueToPreferenceWithPrinterSettings());
    control->setValue("a\xC3"); // cut inside a character
    EXPECT_FALSE(control->SetValueToPreferenceWithPrinterSettings());
    EXPECT_EQ(host->settings.find("QueuePref")->value, "7");
}

TEST_F(BaseControlTest, CountsHoldAViewDownAndArentClamped) {
    QWidget *view = control->GetControlPtr();
    // clang-format off
    const std::pair<bool, bool> steps[] = { // whether it is held or released, and free then
        {true, false}, {true, false}, {false, false}, {false, true},
        {false, true}, {true, true}, {true, false}};
    // clang-format on
    for (const auto &[held, isFree] : steps) {
        held ? control->Disable() : control->Enable();
        held ? control->Hide() : control->Show();
        EXPECT_EQ(views::isEnabled(view), isFree);
        EXPECT_EQ(views::isHidden(view), !isFree);
    }
    control->PPDCtrlShow();
    EXPECT_FALSE(views::isHidden(view));
    EXPECT_EQ(control->hideCount(), 1) << "removal by product passes the counts";
    control->PPDCtrlHide();
    control->ResetStatus();
    EXPECT_TRUE(views::isEnabled(view) && !views::isHidden(view));
}

} // namespace
