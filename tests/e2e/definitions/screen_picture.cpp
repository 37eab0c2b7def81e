#include "e2e/definitions/screen_picture.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace vigrel::testing {

cScreenPicture::cScreenPicture() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    m_Width = screen->width_in_pixels;
    m_Height = screen->height_in_pixels;
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen->root, 0, 0,
                                      screen->width_in_pixels, screen->height_in_pixels, ~0U);
    if (xcb_get_image_reply_t* reply = xcb_get_image_reply(connection, cookie, nullptr)) {
        m_Pixels.resize(static_cast<std::size_t>(m_Width) * static_cast<std::size_t>(m_Height));
        const auto bytes = static_cast<std::size_t>(xcb_get_image_data_length(reply));
        std::memcpy(m_Pixels.data(), xcb_get_image_data(reply),
                    std::min(bytes, m_Pixels.size() * sizeof(std::uint32_t)));
        std::free(reply);
    }
    xcb_disconnect(connection);
}

std::uint32_t cScreenPicture::At(int x, int y) const {
    if (x < 0 || x >= m_Width || y < 0 || y >= m_Height || m_Pixels.empty()) return 0;
    return m_Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_Width) +
                    static_cast<std::size_t>(x)] &
           0xFFFFFF;
}

std::optional<cPixelPlace> cScreenPicture::FindRun(std::uint32_t colour, int length) const {
    for (int y = 0; y < m_Height; ++y) {
        for (int x = 0, run = 0; x < m_Width; ++x) {
            run = At(x, y) == colour ? run + 1 : 0;
            if (run == length) return cPixelPlace{x - length + 1, y};
        }
    }
    return std::nullopt;
}

}  // namespace vigrel::testing
