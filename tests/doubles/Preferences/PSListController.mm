#import <Preferences/PSListController.h>

#import "tests/doubles/Preferences/SpecifierAccess.h"
#import "tests/doubles/Preferences/SpecifierCell.h"

#include <cmath>
#include <vector>

namespace {

/// The specifiers of one section. Rows before the first group form a section without header and footer.
struct Section {
    PSSpecifier* group = nil;
    std::vector<PSSpecifier*> rows;
};

std::vector<Section> sectionsOf(NSArray* specifiers)
{
    std::vector<Section> sections;
    for (PSSpecifier* specifier in specifiers) {
        if ([specifier cellType] == PSGroupCell) {
            sections.push_back({ specifier, {} });
        } else {
            if (sections.empty())
                sections.emplace_back();
            sections.back().rows.push_back(specifier);
        }
    }
    return sections;
}

PSSpecifier* specifierAt(PSListController* controller, NSIndexPath* indexPath)
{
    const auto sections = sectionsOf([controller specifiers]);
    return sections.at(static_cast<std::size_t>([indexPath section]))
        .rows.at(static_cast<std::size_t>([indexPath row]));
}

PSSpecifier* groupAt(PSListController* controller, NSInteger section)
{
    return sectionsOf([controller specifiers]).at(static_cast<std::size_t>(section)).group;
}

PSCellType cellTypeNamed(NSString* name)
{
    NSArray* const names =
        [NSArray arrayWithObjects:@"PSGroupCell", @"PSLinkCell", @"PSLinkListCell", @"PSListItemCell",
                 @"PSTitleValueCell", @"PSSliderCell", @"PSSwitchCell", @"PSStaticTextCell",
                 @"PSEditTextCell", @"PSSegmentCell", @"PSGiantIconCell", @"PSGiantCell",
                 @"PSSecureEditTextCell", @"PSButtonCell", @"PSEditTextViewCell", nil];
    const auto index = name ? [names indexOfObject:name] : NSNotFound;
    return index == NSNotFound ? PSStaticTextCell : static_cast<PSCellType>(index);
}

SEL selectorIn(NSDictionary* properties, NSString* key, SEL otherwise)
{
    NSString* name = [properties objectForKey:key];
    return name ? NSSelectorFromString(name) : otherwise;
}

bool isLength(CGFloat length)
{
    return std::isfinite(length) && length >= 0;
}

} // namespace

@implementation PSListController

- (id)initForContentSize:(CGSize)contentSize
{
    self = [super init];
    if (!isLength(contentSize.width) || !isLength(contentSize.height)) {
        [self release];
        return nil;
    }
    if (self)
        _contentSize = contentSize;
    return self;
}

- (void)dealloc
{
    // The presentation may keep the table longer than its controller exists.
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_specifiers release];
    [super dealloc];
}

- (void)loadView
{
    const CGRect bounds = CGRectMake(0, 0, _contentSize.width, _contentSize.height);
    UIView* view = [[UIView alloc] initWithFrame:bounds];
    _table = [[UITableView alloc] initWithFrame:bounds style:UITableViewStyleGrouped];
    [_table setDataSource:self];
    [_table setDelegate:self];
    [view addSubview:_table];
    [self setView:view];
    [view release];
}

- (UITableView*)table
{
    return _table;
}

- (NSArray*)specifiers
{
    if (!_specifiers)
        _specifiers = [[NSArray alloc] init];
    return _specifiers;
}

- (NSArray*)loadSpecifiersFromPlistName:(NSString*)plistName target:(id)target
{
    NSBundle* bundle = [NSBundle bundleForClass:[self class]];
    NSString* path = [bundle pathForResource:plistName ofType:@"plist"];
    NSDictionary* plist = path ? [NSDictionary dictionaryWithContentsOfFile:path] : nil;
    NSMutableArray* specifiers = [NSMutableArray array];
    for (NSDictionary* item in [plist objectForKey:@"items"]) {
        NSMutableDictionary* properties = [[item mutableCopy] autorelease];
        for (NSString *key in [NSArray arrayWithObjects:@"label", @"footerText", nil]) {
            NSString* text = [item objectForKey:key];
            if (text)
                [properties setObject:[bundle localizedStringForKey:text value:text table:plistName]
                               forKey:key];
        }
        PSSpecifier* specifier = [PSSpecifier
            preferenceSpecifierNamed:[properties objectForKey:@"label"]
                              target:target
                                 set:selectorIn(properties, @"set", @selector(setPreferenceValue:specifier:))
                                 get:selectorIn(properties, @"get", @selector(readPreferenceValue:))
                              detail:Nil
                                cell:cellTypeNamed([properties objectForKey:@"cell"])
                                edit:Nil];
        [specifier setProperties:properties];
        [specifiers addObject:specifier];
    }
    return specifiers;
}

- (void)reloadSpecifiers
{
    [_specifiers release];
    _specifiers = nil;
    [self specifiers];
    [_table reloadData];
}

- (NSInteger)numberOfSectionsInTableView:(UITableView*)tableView
{
    return static_cast<NSInteger>(sectionsOf([self specifiers]).size());
}

- (NSInteger)tableView:(UITableView*)tableView numberOfRowsInSection:(NSInteger)section
{
    const auto sections = sectionsOf([self specifiers]);
    return static_cast<NSInteger>(sections.at(static_cast<std::size_t>(section)).rows.size());
}

- (UITableViewCell*)tableView:(UITableView*)tableView cellForRowAtIndexPath:(NSIndexPath*)indexPath
{
    PSSpecifier* specifier = specifierAt(self, indexPath);
    NSString* type = [specifier propertyForKey:@"cell"];
    SpecifierCell* cell = [tableView dequeueReusableCellWithIdentifier:type];
    if (!cell)
        cell = [[[SpecifierCell alloc] initWithStyle:UITableViewCellStyleDefault
                                     reuseIdentifier:type] autorelease];
    [cell showSpecifier:specifier];
    return cell;
}

- (NSString*)tableView:(UITableView*)tableView titleForHeaderInSection:(NSInteger)section
{
    return [groupAt(self, section) name];
}

- (NSString*)tableView:(UITableView*)tableView titleForFooterInSection:(NSInteger)section
{
    return [groupAt(self, section) propertyForKey:@"footerText"];
}

- (CGFloat)tableView:(UITableView*)tableView heightForRowAtIndexPath:(NSIndexPath*)indexPath
{
    return 44;
}

- (void)tableView:(UITableView*)tableView didSelectRowAtIndexPath:(NSIndexPath*)indexPath
{
    [[tableView cellForRowAtIndexPath:indexPath] setSelected:NO animated:YES];
    [specifierAt(self, indexPath) performAction];
}

@end
