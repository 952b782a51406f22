#import "tests/doubles/MessageUI/ComposedMail.h"

#include "tests/doubles/Trace.h"

#include <string>

@implementation MFMailComposeViewController

@synthesize mailComposeDelegate = _mailComposeDelegate;

- (id)init
{
    self = [super init];
    if (self)
        _attachments = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc
{
    [_subject release];
    [_toRecipients release];
    [_attachments release];
    [super dealloc];
}

- (void)setSubject:(NSString*)subject
{
    [_subject autorelease];
    _subject = [subject copy];
}

- (NSString*)subject
{
    return _subject;
}

- (void)setToRecipients:(NSArray*)toRecipients
{
    [_toRecipients autorelease];
    _toRecipients = [toRecipients copy];
}

- (NSArray*)toRecipients
{
    return _toRecipients;
}

- (void)addAttachmentData:(NSData*)attachment mimeType:(NSString*)mimeType fileName:(NSString*)filename
{
    [_attachments addObject:[NSDictionary dictionaryWithObjectsAndKeys:attachment, @"data", mimeType,
                                          @"mimeType", filename, @"fileName", nil]];
}

- (NSArray*)attachments
{
    return _attachments;
}

- (void)finishWithResult:(MFMailComposeResult)result
{
    if ([_mailComposeDelegate respondsToSelector:@selector(mailComposeController:didFinishWithResult:error:)])
        [_mailComposeDelegate mailComposeController:self didFinishWithResult:result error:nil];
}

- (void)send
{
    brimsound::doubles::record(std::string("mail ") + [_subject UTF8String]);
    [self finishWithResult:MFMailComposeResultSent];
}

- (void)cancel
{
    [self finishWithResult:MFMailComposeResultCancelled];
}

@end
