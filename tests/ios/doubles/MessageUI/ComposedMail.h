// The sheet in which a mail is composed, as the user sees and uses it.
#pragma once

#import <MessageUI/MessageUI.h>

@interface MFMailComposeViewController (ComposedMail)

- (NSString*)subject;
- (NSArray*)toRecipients;
/// A dictionary for each, with @"data", @"mimeType" and @"fileName".
- (NSArray*)attachments;

/// The buttons. What is sent is traced: "mail SUBJECT".
- (void)send;
- (void)cancel;

@end
