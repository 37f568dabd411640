"""The public interface in the words of VB-family languages: signatures, types, heads of event handlers."""

from idl_model import Accessor, Interface, Parameter

TYPES = {"short": "Integer", "long": "Long", "float": "Single", "BSTR": "String", "VARIANT_BOOL": "Boolean",
         "VARIANT": "Variant", "OLE_COLOR": "OLE_COLOR", "IFontDisp*": "StdFont", "IPictureDisp*": "StdPicture",
         "IDispatch*": "Object"}
LENGTH_NAMES = {"MaxLength", "LeftMargin", "RightMargin", "SelStart", "SelLength"}
NUMBERS = {"Integer", "Long", "Single"}


class Member:
    """A property with all its accessors, a method or an event."""

    def __init__(self, name: str, accessors: list[Accessor], is_event: bool) -> None:
        self.name = name
        self.accessors = accessors
        self.is_event = is_event

    @property
    def first(self) -> Accessor:
        return self.accessors[0]

    @property
    def is_property(self) -> bool:
        return self.first.kind != "method"

    @property
    def kind(self) -> str:
        return "event" if self.is_event else "property" if self.is_property else "method"

    @property
    def writable(self) -> bool:
        return any(a.kind.startswith("propput") for a in self.accessors)

    @property
    def parameters(self) -> list[Parameter]:
        return [p for p in self.first.parameters if not p.is_result]

    @property
    def result(self) -> str | None:
        found = [p.type.removesuffix("*") for p in self.first.parameters if p.is_result]
        return basic_type(found[0]) if found else None

    @property
    def least_arguments(self) -> int:
        return sum(1 for p in self.parameters if "optional" not in p.attributes)

    @property
    def value_types(self) -> list[str]:
        """The types of everything a caller gives or gets."""
        return [type_of(p) for p in self.parameters] + ([self.result] if self.result else [])

    @property
    def has_length(self) -> bool:
        return "Single" in self.value_types or self.name in LENGTH_NAMES


def members_of(interface: Interface) -> list[Member]:
    by_name: dict[str, list[Accessor]] = {}
    for accessor in interface.accessors:
        by_name.setdefault(accessor.name, []).append(accessor)
    return [Member(name, accessors, False) for name, accessors in by_name.items()] + \
        [Member(event.name, [event], True) for event in interface.events]


def basic_type(idl_type: str) -> str:
    return TYPES.get(idl_type, idl_type)


def is_by_reference(parameter: Parameter) -> bool:
    return parameter.type.endswith("*") and parameter.type not in TYPES


def type_of(parameter: Parameter) -> str:
    return basic_type(parameter.type.removesuffix("*") if is_by_reference(parameter) else parameter.type)


def default_of(parameter: Parameter) -> str | None:
    values = [a for a in parameter.attributes if a.startswith("defaultvalue(")]
    return values[0][len("defaultvalue("):-1] if values else None


def declared(parameter: Parameter, interface: Interface) -> str:
    default = default_of(parameter)
    if default is not None:
        names = {str(value): name for name, value in interface.enumerations.get(type_of(parameter), {}).items()}
        default = names.get(default, default)
    way = "ByRef" if is_by_reference(parameter) else "ByVal"
    text = f"{way} {parameter.name} As {type_of(parameter)}"
    return text if default is None else f"Optional {text} = {default}"


def signature(member: Member, interface: Interface) -> str:
    parameters = ", ".join(declared(p, interface) for p in member.parameters)
    if member.is_event:
        return f"Event {member.name}({parameters})"
    if member.is_property:
        return f"Property {member.name}" + (f"({parameters})" if parameters else "") + f" As {member.result}"
    if member.result:
        return f"Function {member.name}({parameters}) As {member.result}"
    return f"Sub {member.name}({parameters})"


def handler_parameters(member: Member) -> list[str]:
    """As an editor writes them into the head of a handler."""
    return [f"{'' if is_by_reference(p) else 'ByVal '}{p.name} As {type_of(p)}" for p in member.parameters]
