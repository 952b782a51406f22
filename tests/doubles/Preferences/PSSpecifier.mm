#import <Preferences/PSSpecifier.h>

#import "tests/doubles/Preferences/SpecifierAccess.h"

@implementation PSSpecifier

@synthesize name = _name;
@synthesize target = _target;

+ (PSSpecifier*)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit
{
    PSSpecifier* specifier = [[[self alloc] init] autorelease];
    [specifier setName:name];
    [specifier setTarget:target];
    specifier->_setter = set;
    specifier->_getter = get;
    specifier->_cellType = cell;
    return specifier;
}

- (id)init
{
    self = [super init];
    if (self)
        _properties = [[NSMutableDictionary alloc] init];
    return self;
}

- (void)dealloc
{
    [_name release];
    [_properties release];
    [super dealloc];
}

- (NSDictionary*)properties
{
    return _properties;
}

- (void)setProperties:(NSDictionary*)properties
{
    [_properties setDictionary:properties];
}

- (id)propertyForKey:(NSString*)key
{
    return [_properties objectForKey:key];
}

- (void)setProperty:(id)property forKey:(NSString*)key
{
    if (property)
        [_properties setObject:property forKey:key];
    else
        [_properties removeObjectForKey:key];
}

- (PSCellType)cellType
{
    return _cellType;
}

- (id)performGetter
{
    if (![_target respondsToSelector:_getter])
        return [self propertyForKey:@"default"];
    return [_target performSelector:_getter withObject:self];
}

- (void)performSetterWithValue:(id)value
{
    if ([_target respondsToSelector:_setter])
        [_target performSelector:_setter withObject:value withObject:self];
}

- (void)performAction
{
    NSString* action = [self propertyForKey:@"action"];
    const SEL selector = action ? NSSelectorFromString(action) : nullptr;
    if (selector && [_target respondsToSelector:selector])
        [_target performSelector:selector withObject:self];
}

@end
