"""Screens of other sizes than the panel's."""


def shows_the_corner(session):
    """On a screen that is smaller, the panel's upper left corner; on a larger one, all of it there."""
    session.show_screen("controls")
    shot = session.settings.shot("controls")
    width, height = (min(a, b) for a, b in zip(session.machine.size, (shot.width, shot.height)))
    shown = session.panel.picture()
    assert (shown.width, shown.height) == session.machine.size, "the screen has another size"
    corner = shot.part(0, 0, width, height)
    session.panel.wait_for_picture(corner, session.clocks(), "screen-%dx%d" % session.machine.size)
    assert session.panel.has(name="menu-entry"), "the menu is not there"
