# SPDX-License-Identifier: GPL-3.0-or-later
"""A dbusmock template: NetworkManager with Wi-Fi radios that scan. Times are seconds of CLOCK_BOOTTIME, as there."""

import time

import dbus
import dbusmock
from dbusmock import MOCK_IFACE
from dbusmock.templates import networkmanager as base
from gi.repository import GLib

BUS_NAME, MAIN_OBJ, SYSTEM_BUS, IS_OBJECT_MANAGER = base.BUS_NAME, base.MAIN_OBJ, True, True
DEVICES = "/org/freedesktop/NetworkManager/Devices/"
ACCESS_POINTS = "/org/freedesktop/NetworkManager/AccessPoint/"
CONNECTIONS = "/org/freedesktop/NetworkManager/ActiveConnection/"
PERMISSION = "org.freedesktop.NetworkManager.wifi.scan"
AddEthernetDevice = base.AddEthernetDevice


def boot_seconds():
    return time.clock_gettime(time.CLOCK_BOOTTIME)


def manager():
    return dbusmock.get_object(base.MANAGER_OBJ)


def load(mock, parameters):
    base.load(mock, parameters)
    manager().AddProperties(base.MANAGER_IFACE, {"PrimaryConnection": dbus.ObjectPath("/")})
    manager().AddMethod(base.MANAGER_IFACE, "GetPermissions", "", "a{ss}", "ret = self.permissions")
    manager().permissions = dbus.Dictionary({PERMISSION: "yes"}, signature="ss")
    manager().reads = 0
    mock.connection.add_message_filter(count_call)


@dbus.service.method(MOCK_IFACE, in_signature="ssu")
def AddRadio(self, number, interface, state):
    base.AddWiFiDevice(self, number, interface, state)
    radio = dbusmock.get_object(DEVICES + number)
    radio.AddProperties(base.WIRELESS_DEVICE_IFACE,
                        {"LastScan": dbus.Int64(-1), "ActiveAccessPoint": dbus.ObjectPath("/")})
    radio.AddMethod(base.WIRELESS_DEVICE_IFACE, "RequestScan", "a{sv}", "", "self.scan(self)")
    self.AddObject(CONNECTIONS + number, base.ACTIVE_CONNECTION_IFACE,
                   {"Devices": dbus.Array([DEVICES + number], signature="o")}, [])
    radio.scan, radio.scans, radio.error, radio.milliseconds = scan, 0, "", 50
    radio.in_range = []
    self.Change(base.MANAGER_OBJ, base.MANAGER_IFACE, "Devices", manager().Get(base.MANAGER_IFACE, "Devices"))


@dbus.service.method(MOCK_IFACE, in_signature="s")
def RemoveRadio(self, number):
    path = DEVICES + number
    left = [device for device in manager().Get(base.MANAGER_IFACE, "Devices") if device != path]
    self.object_manager_emit_removed(path)
    self.RemoveObject(path)
    self.RemoveObject(CONNECTIONS + number)
    self.Change(base.MANAGER_OBJ, base.MANAGER_IFACE, "Devices", dbus.Array(left, signature="o"))


@dbus.service.method(MOCK_IFACE, in_signature="su")
def SetState(_self, number, state):
    radio = dbusmock.get_object(DEVICES + number)
    old = radio.Get(base.DEVICE_IFACE, "State")
    radio.Set(base.DEVICE_IFACE, "State", dbus.UInt32(state))
    radio.EmitSignal(base.DEVICE_IFACE, "StateChanged", "uuu", [dbus.UInt32(state), old, dbus.UInt32(0)])


@dbus.service.method(MOCK_IFACE, in_signature="s")
def Connect(self, number):
    """Makes the connection of a radio the one that everything goes through."""
    self.Change(base.MANAGER_OBJ, base.MANAGER_IFACE, "PrimaryConnection", dbus.ObjectPath(CONNECTIONS + number))


@dbus.service.method(MOCK_IFACE, in_signature="ssayi")
def AddNetwork(self, radio, name, ssid, seconds_ago):
    """Adds an access point with a raw name, last seen so many seconds ago. Scans see it again only if that is now."""
    base.AddAccessPoint(self, DEVICES + radio, name, "", "00:00:00:00:00:00", 2, 2412, 54000, 80, 0)
    properties = dbusmock.get_object(ACCESS_POINTS + name).props[base.ACCESS_POINT_IFACE]
    properties["Ssid"] = dbus.ByteArray(bytes(ssid))
    properties["LastSeen"] = dbus.Int32(boot_seconds() - seconds_ago)
    if seconds_ago == 0:
        dbusmock.get_object(DEVICES + radio).in_range.append(properties)


@dbus.service.method(MOCK_IFACE, in_signature="si")
def AddCrowd(self, radio, count):
    paths = [ACCESS_POINTS + str(number) for number in range(count)]
    seen = {"Ssid": dbus.ByteArray(b"Crowd"), "LastSeen": dbus.Int32(boot_seconds())}
    for path in paths:
        self.AddObject(path, base.ACCESS_POINT_IFACE, seen, [])
    self.Change(DEVICES + radio, base.WIRELESS_DEVICE_IFACE, "AccessPoints", dbus.Array(paths, signature="o"))


@dbus.service.method(MOCK_IFACE, in_signature="ss")
def Use(self, radio, name):
    self.Change(DEVICES + radio, base.WIRELESS_DEVICE_IFACE, "ActiveAccessPoint", dbus.ObjectPath(ACCESS_POINTS + name))


@dbus.service.method(MOCK_IFACE, in_signature="sis")
def SetScan(_self, number, milliseconds, error):
    """Sets how long scans take (0: ended before the reply, negative: for ever), or which error refuses them."""
    radio = dbusmock.get_object(DEVICES + number)
    radio.milliseconds, radio.error = milliseconds, error


@dbus.service.method(MOCK_IFACE, in_signature="s", out_signature="i")
def CountScans(_self, number):
    """A request that may ask the person counts for a hundred more."""
    return dbusmock.get_object(DEVICES + number).scans


@dbus.service.method(MOCK_IFACE, in_signature="s")
def SetPermission(_self, permission):
    """Empty for a version that does not know this permission, "broken" for an error. Signals twice, as NetworkManager does."""
    permissions = {PERMISSION: permission} if permission else {}
    manager().permissions = None if permission == "broken" else dbus.Dictionary(permissions, signature="ss")
    for _ in range(2):
        manager().EmitSignal(base.MANAGER_IFACE, "CheckPermissions", "", [])


@dbus.service.method(MOCK_IFACE, in_signature="sssv")
def Change(_self, path, interface, name, value):
    dbusmock.get_object(path).props[interface][name] = value
    changes = [interface, {name: value}, []]
    dbusmock.get_object(path).EmitSignal(dbus.PROPERTIES_IFACE, "PropertiesChanged", "sa{sv}as", changes)


@dbus.service.method(MOCK_IFACE, out_signature="i")
def CountReads(_self):
    """How often all objects were read."""
    return manager().reads


def count_call(_connection, message):
    if message.get_member() == "GetManagedObjects":
        manager().reads += 1
    elif message.get_member() == "RequestScan" and message.get_allow_interactive_authorization():
        dbusmock.get_object(message.get_path()).scans += 100
    return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED


def scan(radio):
    radio.scans += 1
    if radio.error:
        name = f"org.freedesktop.NetworkManager.{radio.error}"
        raise dbus.exceptions.DBusException("Scanning is refused here", name=name)
    if radio.milliseconds == 0:
        end_scan(radio)
    elif radio.milliseconds > 0:
        GLib.timeout_add(radio.milliseconds, end_scan, radio)


def end_scan(radio):
    for properties in radio.in_range:
        properties["LastSeen"] = dbus.Int32(properties["LastSeen"] + 1)
    radio.UpdateProperties(base.WIRELESS_DEVICE_IFACE, {"LastScan": dbus.Int64(1000 * boot_seconds())})
    return False
