// The environment of a pane under test. Each platform has its own implementation, so that the tests of the
// product are the same sources on all platforms.
#pragma once

#include "platform/Foundation/PropertyList.h"
#include "platform/Preferences/PSListController.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::tests {

/// A new device for one test: no preferences file, no observers, and a media server that answers.
class TestPlatform {
public:
    TestPlatform();
    TestPlatform(const TestPlatform&) = delete;
    TestPlatform& operator=(const TestPlatform&) = delete;
    ~TestPlatform();

    /// Whether dictionaries keep the order of the file and of insertion. Otherwise the order is unspecified.
    static const bool dictionariesKeepTheirOrder;

    /// The pane's outside effects since the last call, in order: "message NAME" ("message NAME failed"),
    /// "post NAME", "deliver NAME", "write PATH", "log TEXT".
    std::vector<std::string> takeTrace();
    /// The user info of every message sent since the start.
    std::vector<PropertyList::Dictionary> messages() const;

    /// Runs the main loop until every posted notification has been delivered.
    void deliverNotifications();
    void postFromAnotherProcess(const std::string& name);

    /// Ends a turn of the main loop, when autoreleased objects are released.
    void endTurn();
    /// Advances the clock of animations.
    void passTime(double seconds);

    /// Puts a view into the app's window, which has that size in points. The view fills the window.
    void showInWindow(UIView&, CGSize);
    void resizeWindow(CGSize);
    /// The view that fills the window: its direct subview.
    UIView& topmostView() const;
    /// Lays out everything in the window, as before drawing.
    void layOut();

    /// Stops and starts the media server.
    void stopMediaServer();
    void startMediaServer();

    /// Presses a button of the current alert; 0 is the cancel button. Returns false when there is no alert.
    bool answerAlert(std::size_t button);
    /// The title of the current alert; empty when there is none.
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
    /// The mail that is being composed; nothing when there is none.
    std::optional<Mail> composedMail() const;
    /// Press the buttons of the sheet.
    void sendMail();
    void cancelMail();
    /// Whether a sheet is being animated, shortly after it was presented or dismissed.
    bool isSheetMoving() const;

    /// Commands are executed from now on. Before, they are only traced.
    void carryOutCommands();
    /// No command can be started until the second function is called.
    void failToStartCommands();
    void startCommandsAgain();
    /// Replaces the machine's programs by programs for URLs of those schemes. Every URL that the app opens is
    /// traced as "url URL", whether a program opens it or not.
    void haveProgramsFor(const std::vector<std::string>& schemes);
    void setPreferredLanguages(const std::vector<std::string>& languages);

    /// Writes bytes, or a property list in the XML format, to the preferences file.
    void writePreferencesFile(const std::string& bytes);
    void writePreferencesFile(const PropertyList&);
    /// All later writes to the file fail.
    void makePreferencesFileUnwritable();
    /// The file's bytes; empty when there is no file.
    std::string preferencesFile() const;

private:
    struct Device;
    std::unique_ptr<Device> _device;
};

/// The displayed frame and color (red, green, blue, alpha) of a view, including during an animation.
CGRect shownFrame(const UIView&);
std::vector<CGFloat> shownBackground(const UIView&);
CGFloat shownAlpha(const UIView&);

/// Lets a controller present its sheets, as in an app.
void putIntoAnApp(PSListController&);

} // namespace brimsound::tests
