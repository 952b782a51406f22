#include "tests/doubles/Foundation/DeviceFiles.h"
#include "tests/doubles/Trace.h"

#import <Foundation/Foundation.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace brimsound::doubles {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

NSString* const path = @"/var/mobile/test.plist";

class ADeviceFile : public testing::Test {
protected:
    ADeviceFile()
    {
        mkdtemp(root.data());
        std::filesystem::create_directories(root + "/var/mobile");
        setDeviceRoot(root);
        takeTrace();
    }
    ~ADeviceFile() override
    {
        setDeviceRoot({});
        std::filesystem::remove_all(root);
    }

    std::string root = (std::filesystem::temp_directory_path() / "brimsound-test-XXXXXX").string();
};

TEST_F(ADeviceFile, IsWrittenBelowTheRootAndTraced)
{
    EXPECT_TRUE([[@"text" dataUsingEncoding:NSUTF8StringEncoding] writeToFile:path atomically:NO]);
    EXPECT_TRUE(std::filesystem::exists(root + "/var/mobile/test.plist"));
    EXPECT_THAT(takeTrace(), ElementsAre("write /var/mobile/test.plist"));
}

TEST_F(ADeviceFile, IsReadFromBelowTheRoot)
{
    std::ofstream(root + "/var/mobile/test.plist") << "{ key = value; }";
    EXPECT_EQ([[NSData dataWithContentsOfFile:path] length], 16u);
    EXPECT_TRUE([[[NSDictionary dictionaryWithContentsOfFile:path] objectForKey:@"key"] isEqual:@"value"]);
    EXPECT_TRUE([[NSFileManager defaultManager] fileExistsAtPath:path]);
    EXPECT_THAT(takeTrace(), IsEmpty());
}

TEST_F(ADeviceFile, ThatCannotBeWrittenIsNotTraced)
{
    std::filesystem::create_directories(root + "/var/mobile/test.plist");
    EXPECT_FALSE([[@"text" dataUsingEncoding:NSUTF8StringEncoding] writeToFile:path atomically:NO]);
    EXPECT_THAT(takeTrace(), IsEmpty());
}

TEST_F(ADeviceFile, DoesNotExistBeforeItIsCreated)
{
    EXPECT_FALSE([NSData dataWithContentsOfFile:path]);
    EXPECT_FALSE([[NSFileManager defaultManager] fileExistsAtPath:path]);
}

} // namespace
} // namespace brimsound::doubles
