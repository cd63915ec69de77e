#include "hostbench/XDisplay.h"

#include <xcb/xtest.h>

#include <algorithm>

#include "platform/Freed.h"

namespace penwright {
namespace {

std::uint32_t symbolOf(char32_t character)
{
    constexpr char32_t kLastLatin1 = 0xff;
    constexpr std::uint32_t kUnicodeSymbols = 0x01000000;
    return character <= kLastLatin1 ? character : kUnicodeSymbols | character;
}

}  // namespace

XDisplay::XDisplay() : m_display(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_display))
        return;
    const Freed<xcb_test_get_version_reply_t> version(
        xcb_test_get_version_reply(m_display, xcb_test_get_version(m_display, 2, 2), nullptr));
    const xcb_setup_t *setup = xcb_get_setup(m_display);
    m_firstKey = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Freed<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(m_display, xcb_get_keyboard_mapping(m_display, m_firstKey, count), nullptr));
    if (!version || !mapping)
        return;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    m_perKey = mapping->keysyms_per_keycode;
    m_symbols.assign(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(mapping.get()));
    m_isUsable = true;
}

XDisplay::~XDisplay()
{
    xcb_disconnect(m_display);
}

std::vector<xcb_window_t> XDisplay::children(xcb_window_t window) const
{
    const Freed<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_display, xcb_query_tree(m_display, window), nullptr));
    if (!tree)
        return {};
    const xcb_window_t *first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

xcb_window_t XDisplay::parent(xcb_window_t window) const
{
    const Freed<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_display, xcb_query_tree(m_display, window), nullptr));
    return tree ? tree->parent : xcb_window_t(XCB_WINDOW_NONE);
}

QString XDisplay::title(xcb_window_t window) const
{
    constexpr std::uint32_t kMostWords = 256;
    const char name[] = "_NET_WM_NAME";
    const Freed<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(m_display, xcb_intern_atom(m_display, 1, sizeof name - 1, name), nullptr));
    if (!atom)
        return {};
    const Freed<xcb_get_property_reply_t> property(xcb_get_property_reply(
        m_display, xcb_get_property(m_display, 0, window, atom->atom, XCB_ATOM_ANY, 0, kMostWords), nullptr));
    if (!property)
        return {};
    return QString::fromUtf8(static_cast<const char *>(xcb_get_property_value(property.get())),
                             xcb_get_property_value_length(property.get()));
}

QSize XDisplay::size(xcb_window_t window) const
{
    const Freed<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_display, xcb_get_geometry(m_display, window), nullptr));
    return geometry ? QSize(geometry->width, geometry->height) : QSize();
}

QString XDisplay::focusedTitle() const
{
    const Freed<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(m_display, xcb_get_input_focus(m_display), nullptr));
    xcb_window_t window = focus ? focus->focus : xcb_window_t(XCB_WINDOW_NONE);
    while (window > XCB_INPUT_FOCUS_POINTER_ROOT) {
        const QString found = title(window);
        if (!found.isEmpty())
            return found;
        window = parent(window);
    }
    return {};
}

std::optional<XDisplay::Key> XDisplay::keyFor(std::uint32_t keySymbol) const
{
    // Columns 1 and 2 of a key are what it gives alone and with Shift.
    const int keys = m_perKey > 0 ? static_cast<int>(m_symbols.size()) / m_perKey : 0;
    for (int shifted = 0; shifted < std::min(2, m_perKey); ++shifted)
        for (int key = 0; key < keys; ++key)
            if (m_symbols[static_cast<std::size_t>(key * m_perKey + shifted)] == keySymbol)
                return Key{static_cast<xcb_keycode_t>(m_firstKey + key), shifted == 1};
    return std::nullopt;
}

void XDisplay::sendKey(std::uint8_t event, xcb_keycode_t code)
{
    xcb_test_fake_input(m_display, event, code, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
}

bool XDisplay::pressKey(std::uint32_t keySymbol, std::uint32_t modifier)
{
    const auto key = keyFor(keySymbol);
    const auto held = keyFor(modifier ? modifier : kKeyShift);
    if (!key || !held)
        return false;
    const bool holds = modifier || key->isShifted;
    if (holds)
        sendKey(XCB_KEY_PRESS, held->code);
    sendKey(XCB_KEY_PRESS, key->code);
    sendKey(XCB_KEY_RELEASE, key->code);
    if (holds)
        sendKey(XCB_KEY_RELEASE, held->code);
    xcb_flush(m_display);
    return true;
}

QString XDisplay::untypable(const QString &text) const
{
    for (const char32_t character : text.toUcs4())
        if (!keyFor(symbolOf(character)))
            return QString::fromUcs4(&character, 1);
    return {};
}

void XDisplay::type(const QString &text)
{
    for (const char32_t character : text.toUcs4())
        pressKey(symbolOf(character));
}

}  // namespace penwright
