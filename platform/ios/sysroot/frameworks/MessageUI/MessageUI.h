#pragma once

#import <UIKit/UIKit.h>

typedef enum MFMailComposeResult : NSInteger {
    MFMailComposeResultCancelled = 0,
    MFMailComposeResultSaved,
    MFMailComposeResultSent,
    MFMailComposeResultFailed,
} MFMailComposeResult;

@class MFMailComposeViewController;

@protocol MFMailComposeViewControllerDelegate <NSObject>
@optional
- (void)mailComposeController:(MFMailComposeViewController*)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)error;
@end

/// A navigation controller in the framework; the platform does not need that here.
@interface MFMailComposeViewController : UIViewController
#if defined(GNUSTEP)
{
@private
    id<MFMailComposeViewControllerDelegate> _mailComposeDelegate;
    NSString* _subject;
    NSArray* _toRecipients;
    NSMutableArray* _attachments;
}
#endif

@property (nonatomic, assign) id<MFMailComposeViewControllerDelegate> mailComposeDelegate;

- (void)setSubject:(NSString*)subject;
- (void)setToRecipients:(NSArray*)toRecipients;
- (void)addAttachmentData:(NSData*)attachment mimeType:(NSString*)mimeType fileName:(NSString*)filename;

@end
