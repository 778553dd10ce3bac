// A stand-in for a desktop's system tray under Xvfb: owns the XEmbed tray selection of screen 0,
// so Qt reports a tray and the program keeps running in it once its window is hidden. A docked icon
// is put on show in a small window of its own at the top left, so that a script can click it.
// Build: cc -O2 -o tray-stand-in tray-stand-in.c -lxcb
#include <stdio.h>
#include <string.h>
#include <stdlib.h>
#include <xcb/xcb.h>

int main(void) {
    xcb_connection_t* connection = xcb_connect(NULL, NULL);
    if (xcb_connection_has_error(connection)) {
        fprintf(stderr, "tray-stand-in: no X display\n");
        return 1;
    }
    xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    xcb_window_t owner = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, owner, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, NULL);
    const char* name = "_NET_SYSTEM_TRAY_S0";
    xcb_intern_atom_reply_t* atom =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, (uint16_t)strlen(name), name), NULL);
    xcb_set_selection_owner(connection, owner, atom->atom, XCB_CURRENT_TIME);
    xcb_flush(connection);
    printf("ready\n");
    fflush(stdout);
    // Reports dock requests with the icon's window, which show that a tray item was made, shows
    // the icon, and drops everything else.
    xcb_generic_event_t* event;
    while ((event = xcb_wait_for_event(connection)) != NULL) {
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE) {
            const xcb_client_message_event_t* message = (const xcb_client_message_event_t*)event;
            const xcb_window_t icon = message->data.data32[2];
            if (message->data.data32[1] == 0 && icon != 0) { // SYSTEM_TRAY_REQUEST_DOCK
                xcb_window_t host = xcb_generate_id(connection);
                xcb_create_window(connection, XCB_COPY_FROM_PARENT, host, screen->root, 0, 0, 32, 32, 0,
                                  XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, NULL);
                xcb_map_window(connection, host);
                xcb_reparent_window(connection, icon, host, 0, 0);
                const uint32_t size[] = {32, 32};
                xcb_configure_window(connection, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
                xcb_map_window(connection, icon);
                xcb_flush(connection);
            }
            printf("dock request %u\n", (unsigned)icon);
            fflush(stdout);
        }
        free(event);
    }
    return 0;
}
