#include "panel_fixture.h"

#include "platform/kernel_release.h"
#include "platform/preferences.h"
#include "services/ticket_encoder.h"

namespace {

const CtrlAccessInfo kTicket{.ticketKey = "ticket.key"};
const CtrlAccessInfo kPreference{.preferenceKey = "Pref"};
const CtrlAccessInfo kNothing{};

class BaseControlTest : public PanelTest {
protected:
    void SetUp() override { open(""); }
    void TearDown() override { setKernelRelease("19.6.0"); }
    QString ticket() const {
        const PrintSettings::Entry *entry = host->settings.find(QStringLiteral("ticket.key"));
        return entry ? entry->value : QString();
    }
};

TEST_F(BaseControlTest, TicketValueIsEscapedWhereItHasSpecialCharacters) {
    struct Row {
        QByteArray value;
        const char *ticket;
    };
    const Row rows[] = {
        {"12", "12"},
        {"", ""},
        {"a/b", "a/b"},
        {"/a", "/47/97"},
        {"a,b", "/97/44/98"},
        {"it's", "/105/116/39/115"},
        {"a\\", "/97/92"},
        {"\xC3\xA9,", "/195/169/44"},
        {"a\xEF\xBF\xA4"
         "b\xEF\xBF\xA4",
         "a|b|"},
        {QByteArray(255, 'x'), nullptr},
    };
    RecordingControl *control = recorder(1, "c");
    control->setAccess(&kTicket);
    for (const Row &row : rows) {
        control->setValue(row.value);
        EXPECT_TRUE(control->SetValueToTicket(&host->settings, false)) << row.value.constData();
        EXPECT_EQ(ticket(), row.ticket ? QString::fromUtf8(row.ticket) : QString(255, 'x'));
    }
}

TEST_F(BaseControlTest, StoresWithoutAKey) {
    RecordingControl *control = recorder(1, "c");
    for (const CtrlAccessInfo *access : {static_cast<const CtrlAccessInfo *>(nullptr), &kNothing}) {
        control->setAccess(access);
        control->setValue("1");
        EXPECT_FALSE(control->SetValueToTicket(&host->settings, false));
        EXPECT_FALSE(control->SetValueToTicketWithVLTEnc(&host->settings, false));
        EXPECT_TRUE(control->SetValueToPreference());
        EXPECT_TRUE(control->GetValueFromPreference());
    }
    EXPECT_TRUE(host->settings.entries().isEmpty());
}

TEST_F(BaseControlTest, EncryptsForViewsOfTheArrayUpTo189Bytes) {
    RecordingControl *control = recorder(7, "c");
    control->setAccess(&kTicket);
    control->setValue("secret");
    QWidget same, other;
    same.setProperty("tag", 7);
    other.setProperty("tag", 8);

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
    const auto stored = [] {
        return CFPreferencesCopyValue(QStringLiteral("QueuePref"), kCFPreferencesAnyApplication,
                                      kCFPreferencesCurrentUser, kCFPreferencesCurrentHost);
    };
    CFPreferencesSetValue(QStringLiteral("QueuePref"), QString(), kCFPreferencesAnyApplication,
                          kCFPreferencesCurrentUser, kCFPreferencesCurrentHost);
    RecordingControl *control = recorder(1, "c");
    control->setAccess(&kPreference);
    control->setValue("7");

    EXPECT_TRUE(control->SetValueToPreference());
    EXPECT_TRUE(stored().isNull());
    EXPECT_FALSE(control->GetValueFromPreference());

    setKernelRelease("10.8.0");
    EXPECT_FALSE(control->GetValueFromPreference()) << "nothing stored yet";
    EXPECT_TRUE(control->SetValueToPreference());
    EXPECT_EQ(stored(), "7");
    control->setValue("0");
    EXPECT_TRUE(control->GetValueFromPreference());
    EXPECT_EQ(control->value(), "7");

    EXPECT_TRUE(control->SetValueToPreferenceWithPrinterSettings());
    ASSERT_TRUE(host->settings.find("QueuePref"));
    EXPECT_EQ(host->settings.find("QueuePref")->value, "7");
}

TEST_F(BaseControlTest, CountsHoldAViewDownAndArentClamped) {
    RecordingControl *control = recorder(1, "c");
    QWidget *view = control->GetControlPtr();
    control->Disable();
    control->Disable();
    control->Enable();
    EXPECT_FALSE(views::isEnabled(view)) << "another source holds it";
    control->Enable();
    EXPECT_TRUE(views::isEnabled(view));
    control->Enable();
    control->Disable();
    EXPECT_TRUE(views::isEnabled(view)) << "the count is only 0 again";
    control->Disable();
    EXPECT_FALSE(views::isEnabled(view));

    control->Hide();
    control->Hide();
    control->Show();
    EXPECT_TRUE(views::isHidden(view));
    control->PPDCtrlShow();
    EXPECT_FALSE(views::isHidden(view));
    EXPECT_EQ(control->hideCount(), 1) << "removal by product passes the counts";
    control->PPDCtrlHide();
    control->ResetStatus();
    EXPECT_TRUE(views::isEnabled(view));
    EXPECT_FALSE(views::isHidden(view));
    EXPECT_EQ(control->constrainCount(), 0);
}

} // namespace
