// The description of a row or group of a settings pane. The framework is private.
#pragma once

#import <Foundation/Foundation.h>

typedef enum PSCellType : NSInteger {
    PSGroupCell = 0,
    PSLinkCell = 1,
    PSLinkListCell = 2,
    PSListItemCell = 3,
    PSTitleValueCell = 4,
    PSSliderCell = 5,
    PSSwitchCell = 6,
    PSStaticTextCell = 7,
    PSEditTextCell = 8,
    PSSegmentCell = 9,
    PSGiantIconCell = 10,
    PSGiantCell = 11,
    PSSecureEditTextCell = 12,
    PSButtonCell = 13,
    PSEditTextViewCell = 14,
} PSCellType;

@interface PSSpecifier : NSObject
#if defined(GNUSTEP)
{
@private
    NSString* _name;
    id _target;
    SEL _getter;
    SEL _setter;
    PSCellType _cellType;
    NSMutableDictionary* _properties;
}
#endif

@property (nonatomic, retain) NSString* name;
/// Not retained.
@property (nonatomic, assign) id target;
@property (nonatomic, retain) NSDictionary* properties;

+ (PSSpecifier*)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit;

- (id)propertyForKey:(NSString*)key;
- (void)setProperty:(id)property forKey:(NSString*)key;

@end
