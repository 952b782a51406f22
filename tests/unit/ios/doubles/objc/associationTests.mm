#import <Foundation/Foundation.h>
#import <objc/runtime.h>

#include <gtest/gtest.h>

namespace {

int deallocated = 0;
id seenWhileDeallocating = nil;
const char key = 0;
const char otherKey = 0;

} // namespace

@interface Counted : NSObject
@end

@implementation Counted

- (void)dealloc
{
    ++deallocated;
    [super dealloc];
}

@end

@interface AskingWhileItGoes : NSObject
@end

@implementation AskingWhileItGoes

- (void)dealloc
{
    seenWhileDeallocating = objc_getAssociatedObject(self, &key);
    [super dealloc];
}

@end

namespace {

class AnAssociatedObject : public testing::Test {
protected:
    AnAssociatedObject() { deallocated = 0; }
    ~AnAssociatedObject() override { [object release]; }

    void drop()
    {
        [object release];
        object = nil;
    }

    /// Associates a new value that nobody else retains.
    void associate(const void* withKey)
    {
        Counted* value = [[Counted alloc] init];
        objc_setAssociatedObject(object, withKey, value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
        [value release];
    }

    NSObject* object = [[NSObject alloc] init];
};

TEST_F(AnAssociatedObject, IsFoundUnderItsKeyOnly)
{
    EXPECT_EQ(objc_getAssociatedObject(object, &key), nil);
    associate(&key);
    EXPECT_TRUE([objc_getAssociatedObject(object, &key) isKindOfClass:[Counted class]]);
    EXPECT_EQ(objc_getAssociatedObject(object, &otherKey), nil);
}

TEST_F(AnAssociatedObject, IsReleasedWhenItIsReplaced)
{
    associate(&key);
    associate(&key);
    EXPECT_EQ(deallocated, 1);
    objc_setAssociatedObject(object, &key, nil, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    EXPECT_EQ(deallocated, 2);
    EXPECT_EQ(objc_getAssociatedObject(object, &key), nil);
}

TEST_F(AnAssociatedObject, IsReleasedWithItsOwner)
{
    associate(&key);
    associate(&otherKey);
    drop();
    EXPECT_EQ(deallocated, 2);
}

TEST_F(AnAssociatedObject, IsNotReleasedWhenItIsOnlyAssigned)
{
    Counted* value = [[Counted alloc] init];
    objc_setAssociatedObject(object, &key, value, OBJC_ASSOCIATION_ASSIGN);
    drop();
    EXPECT_EQ(deallocated, 0);
    [value release];
    EXPECT_EQ(deallocated, 1);
}

TEST_F(AnAssociatedObject, ExistsWhileItsOwnersClassesDeallocate)
{
    [object release];
    object = [[AskingWhileItGoes alloc] init];
    seenWhileDeallocating = nil;
    associate(&key);
    id const value = objc_getAssociatedObject(object, &key);
    drop();
    EXPECT_EQ(seenWhileDeallocating, value);
    EXPECT_EQ(deallocated, 1);
}

TEST_F(AnAssociatedObject, MayHaveAssociatedObjectsItself)
{
    associate(&key);
    Counted* value = [[Counted alloc] init];
    objc_setAssociatedObject(
        objc_getAssociatedObject(object, &key), &key, value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    [value release];
    drop();
    EXPECT_EQ(deallocated, 2);
}

} // namespace
