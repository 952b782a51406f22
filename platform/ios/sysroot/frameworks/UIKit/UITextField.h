#pragma once

#import <UIKit/UIControl.h>

@class UIColor;
@class UIFont;
@class UITextField;

typedef enum UIKeyboardAppearance : NSInteger {
    UIKeyboardAppearanceDefault = 0,
    UIKeyboardAppearanceDark = 1,
    UIKeyboardAppearanceLight = 2,
} UIKeyboardAppearance;

typedef enum UIReturnKeyType : NSInteger {
    UIReturnKeyDefault = 0,
    UIReturnKeyDone = 9,
} UIReturnKeyType;

typedef enum UITextAutocapitalizationType : NSInteger {
    UITextAutocapitalizationTypeNone = 0,
    UITextAutocapitalizationTypeWords = 1,
    UITextAutocapitalizationTypeSentences = 2,
    UITextAutocapitalizationTypeAllCharacters = 3,
} UITextAutocapitalizationType;

@protocol UITextFieldDelegate <NSObject>
@optional
- (BOOL)textFieldShouldReturn:(UITextField*)textField;
@end

@interface UITextField : UIControl
#if defined(GNUSTEP)
{
    id<UITextFieldDelegate> _delegate;
    UIKeyboardAppearance _keyboardAppearance;
    UIReturnKeyType _returnKeyType;
    UITextAutocapitalizationType _autocapitalizationType;
}
#endif

@property (nonatomic, copy) NSString* text;
@property (nonatomic, retain) UIFont* font;
@property (nonatomic, retain) UIColor* textColor;
@property (nonatomic, assign) id<UITextFieldDelegate> delegate;
@property (nonatomic) UIKeyboardAppearance keyboardAppearance;
@property (nonatomic) UIReturnKeyType returnKeyType;
@property (nonatomic) UITextAutocapitalizationType autocapitalizationType;
@end
