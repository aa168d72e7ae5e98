"""What the reader of the IDL makes of small descriptions, and what it refuses."""

import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "hosts" / "table"))

import idl  # noqa: E402

ENUMERATION = '''[uuid(1), helpstring("How")] typedef enum Style { styleNone = 0, styleLast = 7 } Style;'''
CLASS = '''[uuid(2), noncreatable, helpstring("A thing")]
coclass Thing { [default] interface _Thing; };'''


def library(members="", before="", classes=CLASS):
    return idl.Reader(f'''[version(1.0)] library Sample {{
{ENUMERATION}
{before}
[object, uuid(3), helpstring("Things")] interface _Thing : IDispatch {{
{members}
}};
{classes}
}};''').read()


def only_member(members):
    made, = library(members).classes
    member, = made.members
    return member


class ReaderTest(unittest.TestCase):
    def test_method(self):
        member = only_member('''[id(3), helpstring("Does it")]  // a remark
            HRESULT Do([in] BSTR Text, [in, optional, defaultvalue("")] BSTR Key,
                       [in, optional, defaultvalue(-1)] VARIANT_BOOL Loud,
                       [in, optional, defaultvalue(styleLast)] Style How,
                       [in, optional, defaultvalue(4)] long Count, [in, optional] VARIANT Where,
                       [out, retval] _Thing** result);''')
        self.assertEqual((member.id, member.name, member.help), (3, "Do", "Does it"))
        self.assertTrue(member.is_method)
        self.assertEqual(member.type, idl.Type("object", "Thing"))
        self.assertEqual(member.parameters, (
            idl.Parameter("Text", idl.Type("text")),
            idl.Parameter("Key", idl.Type("text"), True, False, ""),
            idl.Parameter("Loud", idl.Type("flag"), True, False, True),
            idl.Parameter("How", idl.Type("enumeration", "Style"), True, False, "styleLast"),
            idl.Parameter("Count", idl.Type("long"), True, False, 4),
            idl.Parameter("Where", idl.Type("value"), True)))

    def test_filled_parameters(self):
        member = only_member('''[id(1), helpstring("Where")]
            HRESULT Where([in] BSTR Of, [in, out] float* x);''')
        self.assertEqual([parameter.name for parameter in member.taken], ["Of"])
        self.assertEqual(member.filled, (idl.Parameter("x", idl.Type("single"), False, True),))

    def test_sides_of_a_property(self):
        member = only_member('''[propget, id(1), helpstring("H")]
            HRESULT Size([out, retval] float* result);
            [propput, id(1), helpstring("H")] HRESULT Size([in] float newValue);''')
        self.assertEqual(list(member.functions), ["get", "set"])
        self.assertEqual((member.type, member.parameters), (idl.Type("single"), ()))
        self.assertFalse(member.is_method)

    def test_results(self):
        for written, kind in (("VARIANT_BOOL*", "flag"), ("long*", "long"), ("float*", "single"),
                              ("BSTR*", "text"), ("VARIANT*", "value"), ("IUnknown**", "objects"),
                              ("IDispatch**", "object"), ("SAFEARRAY(BSTR)*", "texts")):
            with self.subTest(written):
                member = only_member(f'''[propget, id(1), helpstring("H")]
                    HRESULT Given([out, retval] {written} result);''')
                self.assertEqual(member.type, idl.Type(kind))

    def test_events_and_creatable_classes(self):
        made, = library(before='''[uuid(4), helpstring("Events")] dispinterface __Thing {
            properties: methods: [id(1), helpstring("It ends")] void Ended([in] _Thing* thing); };''',
                        classes='''[uuid(2), helpstring("A thing")] coclass Thing {
            [default] interface _Thing; [default, source] dispinterface __Thing; };''').classes
        self.assertTrue(made.is_creatable)
        self.assertEqual((made.uuid, made.interface_uuid, made.events_uuid), ("2", "3", "4"))
        event, = made.events
        self.assertEqual(event.parameters,
                         (idl.Parameter("thing", idl.Type("object", "Thing")),))

    def test_a_tag_is_let_and_set(self):
        tag = only_member('''[propput, id(1), helpstring("H")] HRESULT Tag([in] VARIANT newValue);
            [propputref, id(1), helpstring("H")] HRESULT Tag([in] VARIANT newValue);''')
        self.assertTrue(tag.is_tag)
        self.assertFalse(only_member('''[propput, id(1), helpstring("H")]
            HRESULT Color([in] VARIANT newValue);''').is_tag)

    def test_enumeration(self):
        enumeration, = library().enumerations
        self.assertEqual((enumeration.name, enumeration.help, enumeration.constants),
                         ("Style", "How", {"styleNone": 0, "styleLast": 7}))


class RefusalTest(unittest.TestCase):
    def assert_refused(self, message, *described, **parts):
        with self.assertRaisesRegex(idl.IdlError, message):
            library(*described, **parts)

    def test_sign_of_another_language(self):
        self.assert_refused("^line 5: '#pragma' is not understood$", "#pragma")

    def test_other_kinds_of_declarations(self):
        self.assert_refused("^line 3: 'module' is not understood$",
                            before='[helpstring("M")] module Functions { };')

    def test_other_attributes(self):
        self.assert_refused("^line 5: the attribute 'vararg' is not understood$", '''[id(1), vararg, helpstring("H")]
            HRESULT Do([in] BSTR Text);''')

    def test_types_that_are_not_known(self):
        for written in ("Pages", "double", "float*", "Style*", "_Thing", "_Other*", "SAFEARRAY(long)"):
            with self.subTest(written):
                self.assert_refused("is not known$", f'''[id(1), helpstring("H")]
                    HRESULT Do([in] {written} Given);''')

    def test_filled_parameter_that_is_no_number(self):
        self.assert_refused("'Given' is filled with another type than float",
                            '''[id(1), helpstring("H")] HRESULT Do([in, out] BSTR* Given);''')

    def test_results_of_another_kind_than_success(self):
        self.assert_refused("^line 5: 'long' stands where HRESULT is expected$",
                            '[id(1), helpstring("H")] long Do();')

    def test_member_without_identifier_or_help(self):
        self.assert_refused("^line 5: 'id' is missing$", '[helpstring("H")] HRESULT Do();')
        self.assert_refused("^line 5: 'helpstring' is missing$", "[id(1)] HRESULT Do();")

    def test_identifier_of_two_members(self):
        self.assert_refused("^two of One, Two have the same id$",
                            '''[id(1), helpstring("H")] HRESULT One();
                               [id(1), helpstring("H")] HRESULT Two();''')

    def test_sides_of_a_property_that_differ(self):
        sides = '''[propget, id(1), helpstring("H")] HRESULT Size([out, retval] float* result);
                   [propput, id({}), helpstring("{}")] HRESULT Size([in] {} newValue);'''
        library(sides.format(1, "H", "float"))
        for other in ((2, "H", "float"), (1, "G", "float"), (1, "H", "long")):
            with self.subTest(other):
                self.assert_refused("the sides of the property Size differ", sides.format(*other))

    def test_method_of_two_forms(self):
        self.assert_refused("Do stands twice", '''[id(1), helpstring("H")] HRESULT Do();
                                                  [id(1), helpstring("H")] HRESULT Do();''')

    def test_interface_without_class(self):
        self.assert_refused("^_Other is not both an interface and that of a class$", before='''[uuid(5), helpstring("O")]
            interface _Other : IDispatch { [id(1), helpstring("H")] HRESULT Do(); };''')

    def test_class_without_its_interface(self):
        self.assert_refused("^_Other is not both an interface and that of a class$", classes=CLASS + '''
            [uuid(6), helpstring("O")] coclass Other { [default] interface _Other; };''')

    def test_enumeration_of_two_names(self):
        self.assert_refused("'Other' stands where Mode is expected",
                            before='[helpstring("E")] typedef enum Mode { mode = 0 } Other;')

    def test_end_in_the_midst(self):
        with self.assertRaisesRegex(idl.IdlError, "^line 2: "):
            idl.Reader('[version(1.0)] library Sample {\n[helpstring("E")] typedef enum Mode {'
                       ).read()
        with self.assertRaisesRegex(idl.IdlError, "'{' is missing"):
            idl.Reader('[version(1.0)] library Sample {\n[uuid(3), helpstring("E")] interface _Thing'
                       ).read()


if __name__ == "__main__":
    unittest.main()
