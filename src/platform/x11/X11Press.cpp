#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include "platform/x11/Connection.h"
#include "platform/x11/X11Window.h"

namespace penwright::x11 {
namespace {

// What a press in the protocol's extension begins with, in a window or raw.
using InputEvent = xcb_input_raw_button_press_event_t;

bool isOfInputExtension(const xcb_generic_event_t &event)
{
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection(), &xcb_input_id);
    const auto &head = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
    return extension && extension->present && head.extension == extension->major_opcode;
}

}  // namespace

void watchPresses()
{
    if (!available())
        return;
    // The toolkit has agreed on a version of the extension that tells of presses in spite of grabs.
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    } asked;
    const WindowId root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    sendIgnoringErrors(xcb_input_xi_select_events_checked(connection(), root, 1, &asked.head));
}

std::optional<Press> pressOf(const void *message)
{
    const auto &event = *static_cast<const xcb_generic_event_t *>(message);
    const int type = event.response_type & 0x7f;
    if (type == XCB_KEY_PRESS || type == XCB_BUTTON_PRESS)
        return Press{reinterpret_cast<const xcb_key_press_event_t &>(event).time, false};
    if (type != XCB_GE_GENERIC || !isOfInputExtension(event))
        return std::nullopt;
    const auto &input = reinterpret_cast<const InputEvent &>(event);
    if (input.event_type == XCB_INPUT_BUTTON_PRESS || input.event_type == XCB_INPUT_KEY_PRESS)
        return Press{input.time, false};
    if (input.event_type == XCB_INPUT_RAW_BUTTON_PRESS)
        return Press{input.time, true};
    return std::nullopt;
}

Time laterOf(Time one, Time other)
{
    if (one == kNoTime || other == kNoTime)
        return one == kNoTime ? other : one;
    // The display's clock starts anew every 49 days.
    return static_cast<std::int32_t>(one - other) > 0 ? one : other;
}

}  // namespace penwright::x11
