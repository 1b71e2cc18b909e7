#include <QAbstractButton>
#include <QLabel>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "main/Version.h"
#include "support/CertificateAuthority.h"
#include "support/TestWindow.h"
#include "support/WebServer.h"
#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

// The texts that the window in front shows.
std::vector<std::string> textsInFront()
{
    std::vector<std::string> texts;
    for (const auto* const label : QApplication::activeWindow()->findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty()) {
            texts.push_back(label->text().toStdString());
        }
    }
    return texts;
}

class GeneralPane : public PreferencesTest {
protected:
    static constexpr auto launch = "Launch Quorvel at login";
    static constexpr auto automaticChecks = "Automatically check for updates";
    static constexpr auto check = "Check for Updates...";

    void waitUntilShown(const std::string& toggle, bool isOn)
    {
        session.waitFor("\"" + toggle + "\"", [&] {
            const auto* const button = qobject_cast<QAbstractButton*>(ShellPerson::control(toggle));
            return button != nullptr && button->isChecked() == isOn;
        });
    }

    std::filesystem::path autostartEntry() const { return configuration.path() / "autostart/quorvel.desktop"; }

    // Whether updates are looked for from time to time, as the program's next run will find it.
    std::optional<PropertyValue> checksByItself() const
    {
        return PlistUserDefaults(SettingsFile(configuration.path() / "quorvel/updates.plist"),
                                 [](std::string_view line) { ADD_FAILURE() << line; })
            .object("automaticallyChecksForUpdates");
    }
};

// The same with a feed of versions, the newest of which is older than this program.
class GeneralPaneWithAFeed : public GeneralPane {
protected:
    static constexpr auto oldVersion = "<rss><channel><item><version>0.0.1</version></item></channel></rss>";

    ~GeneralPaneWithAFeed() override
    {
        unsetenv("QUORVEL_UPDATE_FEED");
        unsetenv("SSL_CERT_FILE");
    }

    static void useFeed(const xtest::WebServer& server) { setenv("QUORVEL_UPDATE_FEED", server.address().c_str(), 1); }

    // Asks for updates; what the alert then says.
    std::vector<std::string> answerToTheButton()
    {
        std::vector<std::string> answer;
        inPane("General", [&] {
            person.click(check);
            person.waitForWindow("Quorvel");
            answer = session.ask(textsInFront);
            person.tap(XKB_KEY_Return);
            person.waitForWindow("Preferences");
        });
        return answer;
    }
};

TEST_F(GeneralPane, LaunchAtLoginWritesAnEntryOfTheSessionAndTakesItAway)
{
    inPane("General", [&] {
        waitUntilShown(launch, false);
        person.click(launch);
        waitUntilStored("startAtLoginEnabled", {true});
        EXPECT_TRUE(std::filesystem::exists(autostartEntry()));
        waitUntilShown(launch, true);
        person.focus(launch);
        person.tap(XKB_KEY_space);
        waitUntilStored("startAtLoginEnabled", {false});
        EXPECT_FALSE(std::filesystem::exists(autostartEntry()));
        waitUntilShown(launch, false);
    });
}

TEST_F(GeneralPane, LaunchAtLoginShowsWhatHoldsWheneverThePersonComesBack)
{
    xtest::TestWindow other(display.server, {});
    other.map();
    inPane("General", [&] {
        person.click(launch);
        waitUntilStored("startAtLoginEnabled", {true});
        std::filesystem::remove(autostartEntry());
        const auto preferences = session.ask([&] { return display.client.activeWindow(); });
        session.ask([&] {
            display.client.activate(other.id());
            display.client.activate(preferences);
            return true;
        });
        waitUntilShown(launch, false);
        EXPECT_EQ(stored("startAtLoginEnabled"), PropertyValue{true}) << "what was asked for last";
    });
}

TEST_F(GeneralPane, WithoutAnEntryThatCanBeWrittenLaunchAtLoginStaysOffAndSaysWhy)
{
    configuration.write("autostart", "no folder");
    inPane("General", [&] {
        person.click(launch);
        waitUntilStored("startAtLoginEnabled", {false});
        waitUntilShown(launch, false);
        session.waitFor("the reason", [] {
            const auto texts = textsInFront();
            return std::ranges::any_of(texts, [](const auto& text) { return text.contains("autostart"); });
        });
    });
}

TEST_F(GeneralPane, ThePermissionsOfTheSessionAreShownAsGranted)
{
    inPane("General", [&] {
        EXPECT_EQ(session.ask([] {
            const auto labels = QApplication::activeWindow()->findChildren<QLabel*>();
            return std::ranges::count_if(
                labels, [](const QLabel* label) { return label->isVisible() && label->accessibleName() == "Granted"; });
        }),
                  2);
        EXPECT_FALSE(person.isEnabled("Open Settings for Accessibility")) << "no settings of the session deny anything";
        EXPECT_FALSE(person.isEnabled("Open Settings for Input Monitoring"));
    });
}

TEST_F(GeneralPane, WithoutAFeedNobodyCanBeAskedForUpdates)
{
    inPane("General", [&] {
        EXPECT_FALSE(person.isEnabled(automaticChecks));
        EXPECT_FALSE(person.isEnabled(check));
    });
}

TEST_F(GeneralPaneWithAFeed, AutomaticChecksAreKeptBesideTheSettings)
{
    const xtest::WebServer feed(oldVersion);
    useFeed(feed);
    inPane("General", [&] {
        const auto settings = allStored();
        waitUntilShown(automaticChecks, false);
        person.click(automaticChecks);
        session.waitFor("checks by itself", [&] { return checksByItself() == PropertyValue{true}; });
        person.focus(automaticChecks);
        person.tap(XKB_KEY_space);
        session.waitFor("no checks by itself", [&] { return checksByItself() == PropertyValue{false}; });
        EXPECT_EQ(allStored(), settings);
    });
}

TEST_F(GeneralPaneWithAFeed, TheButtonAsksForUpdatesAndTheAnswerIsTold)
{
    const xtest::WebServer feed(oldVersion);
    useFeed(feed);
    EXPECT_THAT(answerToTheButton(), Contains(HasSubstr("Quorvel is up to date.")));
}

TEST_F(GeneralPaneWithAFeed, AFeedOverAnEncryptedConnectionIsReadIfItsServerProvesWhoItIs)
{
    if (!xtest::CertificateAuthority::isInstalled()) {
        GTEST_SKIP() << "needs openssl";
    }
    const xtest::CertificateAuthority authority;
    const xtest::WebServer feed(oldVersion, authority.identityOf("IP:127.0.0.1"));
    useFeed(feed);
    EXPECT_THAT(
        answerToTheButton(),
        AllOf(Contains(HasSubstr("Quorvel could not check for updates.")),
              Contains(HasSubstr("The reason: the server's certificate cannot be trusted: no authority that this "
                                 "system trusts vouches for it."))));
    setenv("SSL_CERT_FILE", authority.certificate().c_str(), 1);
    EXPECT_THAT(answerToTheButton(), Contains(HasSubstr("Quorvel is up to date.")));
}

TEST_F(GeneralPane, AboutTellsTheNameAndTheVersion)
{
    session.run([&] {
        person.chooseFromTray(*tray, "About Quorvel...");
        person.waitForWindow("About Quorvel");
        EXPECT_THAT(session.ask(textsInFront), ElementsAre("Quorvel", "Version " + std::string(version)));
        EXPECT_TRUE(session.ask([] {
            const auto labels = QApplication::activeWindow()->findChildren<QLabel*>();
            return std::ranges::any_of(labels, [](const QLabel* label) { return !label->pixmap().isNull(); });
        })) << "the logo";
    });
}

} // namespace
} // namespace quorvel::x11
