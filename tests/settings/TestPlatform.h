// The world around a pane under test. One implementation for each platform is linked in, so that the
// behavior tests are the same sources everywhere.
#pragma once

#include "platform/Foundation/PropertyList.h"
#include "platform/Preferences/PSListController.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::tests {

/// A fresh device for one test: no preferences file, nobody listening, a media server that answers.
class TestPlatform {
public:
    TestPlatform();
    TestPlatform(const TestPlatform&) = delete;
    TestPlatform& operator=(const TestPlatform&) = delete;
    ~TestPlatform();

    /// Whether dictionaries have the order of the file and of insertion; else they have one of their own.
    static const bool dictionariesKeepTheirOrder;

    /// What the pane did to the outside world since the last call, in order: "message NAME" ("message NAME
    /// failed"), "post NAME", "deliver NAME", "write PATH", "log TEXT".
    std::vector<std::string> takeTrace();
    /// The user info of every message sent since the start.
    std::vector<PropertyList::Dictionary> messages() const;

    /// Runs the main loop until every notification that was posted has been delivered.
    void deliverNotifications();
    void postFromAnotherProcess(const std::string& name);

    /// Ends a turn of the main loop, at which objects are let go of that were to last for the turn.
    void endTurn();
    /// Lets time pass for whatever moves.
    void passTime(double seconds);

    /// Puts a view, which then fills it, into the window that the app has, with that size in points.
    void showInWindow(UIView&, CGSize);
    void resizeWindow(CGSize);
    /// What fills the window: the view right below it.
    UIView& topmostView() const;
    /// Lays out all that is in the window, as happens before it is drawn.
    void layOut();

    /// The media server goes away, or comes back.
    void stopMediaServer();
    void startMediaServer();

    /// Presses a button of the alert that is shown; 0 is the cancel button. False when none is.
    bool answerAlert(std::size_t button);
    /// The title of the alert that is shown; empty when it has none or none is shown.
    std::string alertTitle() const;

    /// A mail in its sheet, as the user sees it.
    struct Mail {
        std::string subject;
        std::vector<std::string> to;
        struct Attachment {
            std::string fileName;
            std::string mimeType;
            std::string bytes;
        };
        std::vector<Attachment> attachments;
    };
    /// The mail that is being composed; nothing when none is.
    std::optional<Mail> composedMail() const;
    /// Presses a button of the sheet.
    void sendMail();
    void cancelMail();
    /// Whether a sheet is on its way in or out, a moment after it was presented or dismissed.
    bool isSheetMoving() const;

    /// Commands are carried out from now on; before, they are only traced.
    void carryOutCommands();
    /// No command can be started from now on, until they can again.
    void failToStartCommands();
    void startCommandsAgain();
    /// What programs there are for URLs of those schemes, in place of whatever the machine has. A URL that
    /// the app opens is traced, "url URL", whether there is one or not.
    void haveProgramsFor(const std::vector<std::string>& schemes);
    void setPreferredLanguages(const std::vector<std::string>& languages);

    /// Puts bytes, or a property list in the XML format, into the preferences file's place.
    void writePreferencesFile(const std::string& bytes);
    void writePreferencesFile(const PropertyList&);
    /// Whatever is written to the file from now on fails.
    void makePreferencesFileUnwritable();
    /// The file's bytes; empty when there is no file.
    std::string preferencesFile() const;

private:
    struct Device;
    std::unique_ptr<Device> _device;
};

/// Where a view is seen, and in what color (red, green, blue, alpha): on its way there while it is animated.
CGRect shownFrame(const UIView&);
std::vector<CGFloat> shownBackground(const UIView&);
CGFloat shownAlpha(const UIView&);

/// Lets a controller present its sheets, as the app does that shows it.
void putIntoAnApp(PSListController&);

} // namespace brimsound::tests
