#include <penwright_host/ToolAddress.h>

#include <gtest/gtest.h>

namespace penwright {
namespace {

using namespace std::string_literals;

struct AddressCase {
    ToolAddress address;
    std::string problem;
};

void PrintTo(const AddressCase &row, std::ostream *out)
{
    *out << row.problem;
}

class AddressProblem : public testing::TestWithParam<AddressCase> {};

TEST_P(AddressProblem, namesTheField)
{
    EXPECT_EQ(addressProblem(GetParam().address), GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, AddressProblem,
    testing::Values(
        AddressCase{{.window = 1, .section = "Sec"}, ""},
        AddressCase{{.window = 2147483647, .inbox = "My box", .tag = "a b", .openFiles = 32767, .section = "ä"}, ""},
        AddressCase{{.window = 0, .section = "Sec"}, "the window is 0, not 1 to 2147483647"},
        AddressCase{{.window = 2147483648U, .section = "Sec"}, "the window is 2147483648, not 1 to 2147483647"},
        AddressCase{{.window = 1, .openFiles = -1, .section = "Sec"}, "the number of files is -1, not 0 to 32767"},
        AddressCase{{.window = 1, .openFiles = 32768, .section = "Sec"},
                    "the number of files is 32768, not 0 to 32767"},
        AddressCase{{.window = 1, .section = ""}, "the section is empty"},
        AddressCase{{.window = 1, .inbox = "", .section = "Sec"}, "the inbox is empty"},
        AddressCase{{.window = 1, .tag = "", .section = "Sec"}, "the tag is empty"},
        AddressCase{{.window = 1, .section = "a,b"}, "the section holds a comma or a line end"},
        AddressCase{{.window = 1, .inbox = "a\nb", .section = "Sec"}, "the inbox holds a comma or a line end"},
        AddressCase{{.window = 1, .tag = "7\r", .section = "Sec"}, "the tag holds a comma or a line end"},
        AddressCase{{.window = 1, .tag = "7\0"s, .section = "Sec"}, "the tag holds a comma or a line end"},
        AddressCase{{.window = 1, .inbox = "PenwrightPE|7", .tag = "7", .section = "Sec"},
                    "the inbox is the tool's own"},
        AddressCase{{.window = 1, .inbox = "PenwrightPE|8", .tag = "7", .section = "Sec"}, ""},
        AddressCase{{.window = 1, .inbox = "Filename1", .section = "Sec"},
                    "the inbox is \"Filename1\", a value of a record"},
        AddressCase{{.window = 1, .inbox = "PictureFilename25", .section = "Sec"},
                    "the inbox is \"PictureFilename25\", a value of a record"},
        AddressCase{{.window = 1, .inbox = "Filename26", .section = "Sec"}, ""}));

}  // namespace
}  // namespace penwright
