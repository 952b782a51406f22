// The user's actions in the sheet of a mail.
#pragma once

#import <MessageUI/MessageUI.h>

@interface MFMailComposeViewController (ComposedMail)

- (NSString*)subject;
- (NSArray*)toRecipients;
/// A dictionary for each attachment, with @"data", @"mimeType" and @"fileName".
- (NSArray*)attachments;

/// Press the buttons. Sending is traced as "mail SUBJECT".
- (void)send;
- (void)cancel;

@end
