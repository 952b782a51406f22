#include "tests/doubles/MessageUI/ComposedMail.h"
#include "tests/doubles/Trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<NSInteger> results;

} // namespace

@interface MailDelegate : NSObject <MFMailComposeViewControllerDelegate>
@end

@implementation MailDelegate

- (void)mailComposeController:(MFMailComposeViewController*)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)error
{
    results.push_back(result);
}

@end

namespace {

TEST(AMail, KeepsItsContentsAndTellsItsDelegateTheResult)
{
    MFMailComposeViewController* mail = [[MFMailComposeViewController alloc] init];
    MailDelegate* delegate = [[MailDelegate alloc] init];
    [mail setMailComposeDelegate:delegate];
    [mail setSubject:@"Help"];
    [mail setToRecipients:[NSArray arrayWithObject:@"me@brimsound.example"]];
    [mail addAttachmentData:[NSData data] mimeType:@"text/plain" fileName:@"file.txt"];
    EXPECT_TRUE([[mail toRecipients] isEqual:[NSArray arrayWithObject:@"me@brimsound.example"]]);
    EXPECT_TRUE([[[[mail attachments] lastObject] objectForKey:@"fileName"] isEqual:@"file.txt"]);

    brimsound::doubles::takeTrace();
    [mail cancel];
    EXPECT_THAT(brimsound::doubles::takeTrace(), testing::IsEmpty());
    [mail send];
    EXPECT_THAT(brimsound::doubles::takeTrace(), testing::ElementsAre("mail Help"));
    EXPECT_THAT(results, testing::ElementsAre(MFMailComposeResultCancelled, MFMailComposeResultSent));
    [delegate release];
    [mail release];
}

} // namespace
