// Written by grammar/compile_grammar.py from grammar/Cypher.g4; not to be edited.
#include "parser/CompiledParser.h"
#include "parser/RuleParser.h"

namespace vorn {

namespace {

constexpr TokenSet set0{52, 54, 55, 56, 57, 58};
constexpr TokenSet set1{49, 54};
constexpr TokenSet set2{85, 91, 92, 93, 100, 121, 122, 123, 126};
constexpr TokenSet set3{68, 69, 70, 71};
constexpr TokenSet set4{73, 74};
constexpr TokenSet set5{14, 19, 27, 28, 29, 30, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45};
constexpr TokenSet set6{19, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45};
constexpr TokenSet set7{35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45};
constexpr TokenSet set8{9, 24, 26, 85, 91, 92, 93, 100, 121, 122, 123, 126, 127};
constexpr TokenSet set9{15, 31, 32, 33, 34};
constexpr TokenSet set10{35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 127};
constexpr TokenSet set11{27, 28, 29, 30, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45};
constexpr TokenSet set12{3, 13, 14, 15, 16, 17};
constexpr TokenSet set13{79, 80, 81, 82, 83};
constexpr TokenSet set14{18, 19};
constexpr TokenSet set15{5, 20, 21};
constexpr TokenSet set16{6, 8, 18, 19, 24, 26, 47, 78, 84, 85, 86, 91, 92, 93, 94, 95, 96, 97, 98, 99, 100, 107, 108, 109, 121, 122, 123, 126};
constexpr TokenSet set17{47, 91, 92, 93};
constexpr TokenSet set18{95, 96};
constexpr TokenSet set19{97, 98, 99};
constexpr TokenSet set20{107, 108};
constexpr TokenSet set21{46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 61, 62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 75, 76, 77, 78, 79, 80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92, 93, 94, 95, 96, 100, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 126};
constexpr TokenSet set22{46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 61, 62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 75, 76, 77, 78, 79, 80, 81, 82, 83, 84, 86, 87, 88, 89, 90, 94, 95, 96, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120};
constexpr TokenSet set23{14, 27, 28, 29, 30};

class Rules final : public RuleParser<Rules> {
 public:
  using RuleParser::RuleParser;

  bool oC_Cypher();
  bool oC_Statement();
  bool oC_Query();
  bool oC_RegularQuery();
  bool oC_Union();
  bool oC_SingleQuery();
  bool oC_UpdatingClause();
  bool oC_ReadingClause();
  bool oC_Match();
  bool oC_Unwind();
  bool oC_Merge();
  bool oC_MergeAction();
  bool oC_Create();
  bool oC_Set();
  bool oC_SetItem();
  bool oC_Delete();
  bool oC_Remove();
  bool oC_RemoveItem();
  bool oC_InQueryCall();
  bool oC_StandaloneCall();
  bool oC_YieldItems();
  bool oC_YieldItem();
  bool oC_With();
  bool oC_Return();
  bool oC_ProjectionBody();
  bool oC_ProjectionItems();
  bool oC_ProjectionItem();
  bool oC_Order();
  bool oC_Skip();
  bool oC_Limit();
  bool oC_SortItem();
  bool oC_Where();
  bool oC_Pattern();
  bool oC_PatternPart();
  bool oC_AnonymousPatternPart();
  bool oC_ShortestPathPattern();
  bool oC_PatternElement();
  bool oC_RelationshipsPattern();
  bool oC_NodePattern();
  bool oC_PatternElementChain();
  bool oC_RelationshipPattern();
  bool oC_RelationshipDetail();
  bool oC_Properties();
  bool oC_RelationshipTypes();
  bool oC_NodeLabels();
  bool oC_NodeLabel();
  bool oC_RangeLiteral();
  bool oC_LabelName();
  bool oC_RelTypeName();
  bool oC_PropertyExpression();
  bool oC_Expression();
  bool oC_OrExpression();
  bool oC_XorExpression();
  bool oC_AndExpression();
  bool oC_NotExpression();
  bool oC_ComparisonExpression();
  bool oC_PartialComparisonExpression();
  bool oC_StringListNullPredicateExpression();
  bool oC_StringPredicateExpression();
  bool oC_ListPredicateExpression();
  bool oC_NullPredicateExpression();
  bool oC_AddOrSubtractExpression();
  bool oC_MultiplyDivideModuloExpression();
  bool oC_PowerOfExpression();
  bool oC_UnaryAddOrSubtractExpression();
  bool oC_ListOperatorExpression();
  bool oC_PropertyOrLabelsExpression();
  bool oC_PropertyLookup();
  bool oC_Atom();
  bool oC_CaseExpression();
  bool oC_CaseAlternative();
  bool oC_ListComprehension();
  bool oC_PatternComprehension();
  bool oC_Quantifier();
  bool oC_FilterExpression();
  bool oC_PatternPredicate();
  bool oC_ParenthesizedExpression();
  bool oC_IdInColl();
  bool oC_FunctionInvocation();
  bool oC_FunctionName();
  bool oC_ExistentialSubquery();
  bool oC_ExplicitProcedureInvocation();
  bool oC_ImplicitProcedureInvocation();
  bool oC_ProcedureResultField();
  bool oC_ProcedureName();
  bool oC_Namespace();
  bool oC_Variable();
  bool oC_Literal();
  bool oC_BooleanLiteral();
  bool oC_NumberLiteral();
  bool oC_IntegerLiteral();
  bool oC_DoubleLiteral();
  bool oC_ListLiteral();
  bool oC_MapLiteral();
  bool oC_PropertyKeyName();
  bool oC_Parameter();
  bool oC_SchemaName();
  bool oC_ReservedWord();
  bool oC_SymbolicName();
  bool oC_LeftArrowHead();
  bool oC_RightArrowHead();
  bool oC_Dash();
  bool oC_RelationshipsPattern_link();
  bool oC_Atom_4();
};

bool Rules::oC_Cypher() {
  skip(127);
  if (!oC_Statement()) {
    return false;
  }
  if (ahead(0) == 1 || (ahead(0) == 127 && ahead(1) == 1)) {
    skip(127);
    if (!take(1)) {
      return false;
    }
  }
  skip(127);
  if (!take(0)) {
    return false;
  }
  return true;
}

bool Rules::oC_Statement() {
  if (!oC_Query()) {
    return false;
  }
  return true;
}

bool Rules::oC_Query() {
  unsigned chosen = 0;
  switch (ahead(0)) {
    case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57: case 58: case 61:
    case 62:
      chosen = 1;
      break;
    case 59:
      switch (ahead(1)) {
        case 127:
          switch (ahead(2)) {
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              chosen = 102;
              break;
          }
          break;
      }
      break;
  }
  switch (chosen) {
    case 1:
      if (!oC_RegularQuery()) {
        return false;
      }
      break;
    case 102: {
      static constexpr std::array candidates{&Rules::oC_RegularQuery, &Rules::oC_StandaloneCall};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    default:
      return false;
  }
  return true;
}

bool Rules::oC_RegularQuery() {
  if (!oC_SingleQuery()) {
    return false;
  }
  while (ahead(0) == 46 || (ahead(0) == 127 && ahead(1) == 46)) {
    skip(127);
    if (!oC_Union()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_Union() {
  const std::uint32_t node = open(TreeRule::oC_Union);
  if (!take(46)) {
    return false;
  }
  if ((ahead(0) == 127 && ahead(1) == 47)) {
    if (!take(127)) {
      return false;
    }
    if (!take(47)) {
      return false;
    }
  }
  skip(127);
  if (!oC_SingleQuery()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_SingleQuery() {
  while (true) {
    while ((ahead(0) == 48 || ahead(0) == 49 || ahead(0) == 50 || ahead(0) == 59)) {
      if (!oC_ReadingClause()) {
        return false;
      }
      skip(127);
    }
    switch (ahead(0)) {
      case 52: case 54: case 55: case 56: case 57: case 58:
        while (true) {
          if (!oC_UpdatingClause()) {
            return false;
          }
          if (!(set0.holds(ahead(0)) || (ahead(0) == 127 && set0.holds(ahead(1))))) {
            break;
          }
          skip(127);
        }
        if ((ahead(0) == 61 || ahead(0) == 62) || (ahead(0) == 127 && ((ahead(1) == 61 || ahead(1) == 62)))) {
          skip(127);
          switch (ahead(0)) {
            case 61:
              if (!oC_With()) {
                return false;
              }
              skip(127);
              continue;
            case 62:
              if (!oC_Return()) {
                return false;
              }
              break;
            default:
              return false;
          }
        }
        break;
      case 61:
        if (!oC_With()) {
          return false;
        }
        skip(127);
        continue;
      case 62:
        if (!oC_Return()) {
          return false;
        }
        break;
      default:
        return false;
    }
    return true;
  }
}

bool Rules::oC_UpdatingClause() {
  switch (ahead(0)) {
    case 52:
      if (!oC_Merge()) {
        return false;
      }
      break;
    case 54:
      if (!oC_Create()) {
        return false;
      }
      break;
    case 55:
      if (!oC_Set()) {
        return false;
      }
      break;
    case 56: case 57:
      if (!oC_Delete()) {
        return false;
      }
      break;
    case 58:
      if (!oC_Remove()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_ReadingClause() {
  switch (ahead(0)) {
    case 48: case 49:
      if (!oC_Match()) {
        return false;
      }
      break;
    case 50:
      if (!oC_Unwind()) {
        return false;
      }
      break;
    case 59:
      if (!oC_InQueryCall()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_Match() {
  if (ahead(0) == 48) {
    if (!take(48)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  if (!take(49)) {
    return false;
  }
  skip(127);
  if (!oC_Pattern()) {
    return false;
  }
  if (ahead(0) == 72 || (ahead(0) == 127 && ahead(1) == 72)) {
    skip(127);
    if (!oC_Where()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_Unwind() {
  const std::uint32_t node = open(TreeRule::oC_Unwind);
  if (!take(50)) {
    return false;
  }
  skip(127);
  if (!oC_Expression()) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!take(51)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_Variable()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_Merge() {
  if (!take(52)) {
    return false;
  }
  skip(127);
  if (!oC_PatternPart()) {
    return false;
  }
  while ((ahead(0) == 127 && ahead(1) == 53)) {
    if (!take(127)) {
      return false;
    }
    if (!oC_MergeAction()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_MergeAction() {
  if (!take(53)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!takeOneOf(set1)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_Set()) {
    return false;
  }
  return true;
}

bool Rules::oC_Create() {
  if (!take(54)) {
    return false;
  }
  skip(127);
  if (!oC_Pattern()) {
    return false;
  }
  return true;
}

bool Rules::oC_Set() {
  if (!take(55)) {
    return false;
  }
  skip(127);
  while (true) {
    if (!oC_SetItem()) {
      return false;
    }
    if (!(ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2))) {
      break;
    }
    skip(127);
    if (!take(2)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_SetItem() {
  unsigned chosen = 0;
  switch (ahead(0)) {
    case 6: case 8: case 24: case 26: case 47: case 84: case 86: case 94: case 95: case 96: case 97:
    case 98: case 99: case 107: case 108: case 109:
      chosen = 1;
      break;
    case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
      switch (ahead(1)) {
        case 3: case 4: case 10:
          chosen = 2;
          break;
        case 6: case 23:
          chosen = 1;
          break;
        case 127:
          switch (ahead(2)) {
            case 3: case 4: case 10:
              chosen = 2;
              break;
            case 6: case 23:
              chosen = 1;
              break;
          }
          break;
      }
      break;
  }
  switch (chosen) {
    case 1:
      if (!oC_PropertyExpression()) {
        return false;
      }
      skip(127);
      if (!take(3)) {
        return false;
      }
      skip(127);
      if (!oC_Expression()) {
        return false;
      }
      break;
    case 2:
      if (!oC_Variable()) {
        return false;
      }
      skip(127);
      switch (ahead(0)) {
        case 3:
          if (!take(3)) {
            return false;
          }
          skip(127);
          if (!oC_Expression()) {
            return false;
          }
          break;
        case 4:
          if (!take(4)) {
            return false;
          }
          skip(127);
          if (!oC_Expression()) {
            return false;
          }
          break;
        case 10:
          if (!oC_NodeLabels()) {
            return false;
          }
          break;
        default:
          return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_Delete() {
  if (ahead(0) == 56) {
    if (!take(56)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  if (!take(57)) {
    return false;
  }
  skip(127);
  while (true) {
    if (!oC_Expression()) {
      return false;
    }
    if (!(ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2))) {
      break;
    }
    skip(127);
    if (!take(2)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_Remove() {
  if (!take(58)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  while (true) {
    if (!oC_RemoveItem()) {
      return false;
    }
    if (!(ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2))) {
      break;
    }
    skip(127);
    if (!take(2)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_RemoveItem() {
  unsigned chosen = 0;
  switch (ahead(0)) {
    case 6: case 8: case 24: case 26: case 47: case 84: case 86: case 94: case 95: case 96: case 97:
    case 98: case 99: case 107: case 108: case 109:
      chosen = 2;
      break;
    case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
      switch (ahead(1)) {
        case 6: case 23: case 127:
          chosen = 2;
          break;
        case 10:
          chosen = 1;
          break;
      }
      break;
  }
  switch (chosen) {
    case 1:
      if (!oC_Variable()) {
        return false;
      }
      if (!oC_NodeLabels()) {
        return false;
      }
      break;
    case 2:
      if (!oC_PropertyExpression()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_InQueryCall() {
  if (!take(59)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_ExplicitProcedureInvocation()) {
    return false;
  }
  if (ahead(0) == 60 || (ahead(0) == 127 && ahead(1) == 60)) {
    skip(127);
    if (!take(60)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
    if (!oC_YieldItems()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_StandaloneCall() {
  if (!take(59)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  unsigned chosen = 0;
  switch (ahead(0)) {
    case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
      switch (ahead(1)) {
        case 0: case 1: case 60:
          chosen = 2;
          break;
        case 6:
          chosen = 1;
          break;
        case 23:
          switch (ahead(2)) {
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              chosen = 102;
              break;
          }
          break;
        case 127:
          switch (ahead(2)) {
            case 0: case 1: case 60:
              chosen = 2;
              break;
            case 6:
              chosen = 1;
              break;
          }
          break;
      }
      break;
  }
  switch (chosen) {
    case 1:
      if (!oC_ExplicitProcedureInvocation()) {
        return false;
      }
      break;
    case 2:
      if (!oC_ImplicitProcedureInvocation()) {
        return false;
      }
      break;
    case 102: {
      static constexpr std::array candidates{&Rules::oC_ExplicitProcedureInvocation, &Rules::oC_ImplicitProcedureInvocation};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    default:
      return false;
  }
  if (ahead(0) == 60 || (ahead(0) == 127 && ahead(1) == 60)) {
    skip(127);
    if (!take(60)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
    switch (ahead(0)) {
      case 5:
        if (!take(5)) {
          return false;
        }
        break;
      case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
        if (!oC_YieldItems()) {
          return false;
        }
        break;
      default:
        return false;
    }
  }
  return true;
}

bool Rules::oC_YieldItems() {
  while (true) {
    if (!oC_YieldItem()) {
      return false;
    }
    if (!(ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2))) {
      break;
    }
    skip(127);
    if (!take(2)) {
      return false;
    }
    skip(127);
  }
  if (ahead(0) == 72 || (ahead(0) == 127 && ahead(1) == 72)) {
    skip(127);
    if (!oC_Where()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_YieldItem() {
  if ((set2.holds(ahead(0)) && (ahead(1) == 127 && ahead(2) == 51))) {
    if (!oC_ProcedureResultField()) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
    if (!take(51)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  if (!oC_Variable()) {
    return false;
  }
  return true;
}

bool Rules::oC_With() {
  const std::uint32_t node = open(TreeRule::oC_With);
  if (!take(61)) {
    return false;
  }
  if (!oC_ProjectionBody()) {
    return false;
  }
  if (ahead(0) == 72 || (ahead(0) == 127 && ahead(1) == 72)) {
    skip(127);
    if (!oC_Where()) {
      return false;
    }
  }
  close(node);
  return true;
}

bool Rules::oC_Return() {
  if (!take(62)) {
    return false;
  }
  if (!oC_ProjectionBody()) {
    return false;
  }
  return true;
}

bool Rules::oC_ProjectionBody() {
  if (ahead(0) == 63 || (ahead(0) == 127 && ahead(1) == 63)) {
    skip(127);
    if (!take(63)) {
      return false;
    }
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_ProjectionItems()) {
    return false;
  }
  if ((ahead(0) == 127 && ahead(1) == 64)) {
    if (!take(127)) {
      return false;
    }
    if (!oC_Order()) {
      return false;
    }
  }
  if ((ahead(0) == 127 && ahead(1) == 66)) {
    if (!take(127)) {
      return false;
    }
    if (!oC_Skip()) {
      return false;
    }
  }
  if ((ahead(0) == 127 && ahead(1) == 67)) {
    if (!take(127)) {
      return false;
    }
    if (!oC_Limit()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_ProjectionItems() {
  const std::uint32_t node = open(TreeRule::oC_ProjectionItems);
  switch (ahead(0)) {
    case 5:
      if (!take(5)) {
        return false;
      }
      while (ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2)) {
        skip(127);
        if (!take(2)) {
          return false;
        }
        skip(127);
        if (!oC_ProjectionItem()) {
          return false;
        }
      }
      break;
    case 6: case 8: case 18: case 19: case 24: case 26: case 47: case 78: case 84: case 85: case 86:
    case 91: case 92: case 93: case 94: case 95: case 96: case 97: case 98: case 99: case 100:
    case 107: case 108: case 109: case 121: case 122: case 123: case 126:
      while (true) {
        if (!oC_ProjectionItem()) {
          return false;
        }
        if (!(ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2))) {
          break;
        }
        skip(127);
        if (!take(2)) {
          return false;
        }
        skip(127);
      }
      break;
    default:
      return false;
  }
  close(node);
  return true;
}

bool Rules::oC_ProjectionItem() {
  const std::uint32_t node = open(TreeRule::oC_ProjectionItem);
  if (!oC_Expression()) {
    return false;
  }
  if ((ahead(0) == 127 && ahead(1) == 51)) {
    if (!take(127)) {
      return false;
    }
    if (!take(51)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
    if (!oC_Variable()) {
      return false;
    }
  }
  close(node);
  return true;
}

bool Rules::oC_Order() {
  if (!take(64)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!take(65)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  while (true) {
    if (!oC_SortItem()) {
      return false;
    }
    if (!(ahead(0) == 2)) {
      break;
    }
    if (!take(2)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_Skip() {
  if (!take(66)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_Expression()) {
    return false;
  }
  return true;
}

bool Rules::oC_Limit() {
  if (!take(67)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_Expression()) {
    return false;
  }
  return true;
}

bool Rules::oC_SortItem() {
  if (!oC_Expression()) {
    return false;
  }
  if ((ahead(0) == 68 || ahead(0) == 69 || ahead(0) == 70 || ahead(0) == 71) || (ahead(0) == 127 && ((ahead(1) == 68 || ahead(1) == 69 || ahead(1) == 70 || ahead(1) == 71)))) {
    skip(127);
    if (!takeOneOf(set3)) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_Where() {
  if (!take(72)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_Expression()) {
    return false;
  }
  return true;
}

bool Rules::oC_Pattern() {
  while (true) {
    if (!oC_PatternPart()) {
      return false;
    }
    if (!(ahead(0) == 2 || (ahead(0) == 127 && ahead(1) == 2))) {
      break;
    }
    skip(127);
    if (!take(2)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_PatternPart() {
  const std::uint32_t node = open(TreeRule::oC_PatternPart);
  if (set2.holds(ahead(0))) {
    if (!oC_Variable()) {
      return false;
    }
    skip(127);
    if (!take(3)) {
      return false;
    }
    skip(127);
  }
  if (!oC_AnonymousPatternPart()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_AnonymousPatternPart() {
  switch (ahead(0)) {
    case 6:
      if (!oC_PatternElement()) {
        return false;
      }
      break;
    case 73: case 74:
      if (!oC_ShortestPathPattern()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_ShortestPathPattern() {
  if (!takeOneOf(set4)) {
    return false;
  }
  skip(127);
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (!oC_PatternElement()) {
    return false;
  }
  skip(127);
  if (!take(7)) {
    return false;
  }
  return true;
}

bool Rules::oC_PatternElement() {
  if (isStackUsedUp()) {
    return false;
  }
  unsigned chosen = 0;
  switch (ahead(0)) {
    case 6:
      switch (ahead(1)) {
        case 6:
          chosen = 2;
          break;
        case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93: case 100: case 121:
        case 122: case 123: case 126: case 127:
          chosen = 1;
          break;
      }
      break;
  }
  switch (chosen) {
    case 1:
      if (!oC_NodePattern()) {
        return false;
      }
      while (set5.holds(ahead(0)) || (ahead(0) == 127 && set5.holds(ahead(1)))) {
        skip(127);
        if (!oC_PatternElementChain()) {
          return false;
        }
      }
      break;
    case 2:
      if (!take(6)) {
        return false;
      }
      if (!oC_PatternElement()) {
        return false;
      }
      if (!take(7)) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_RelationshipsPattern() {
  if (!oC_NodePattern()) {
    return false;
  }
  if (!oC_RelationshipsPattern_link()) {
    return false;
  }
  while (((ahead(0) == 14 && ((ahead(1) == 19 && ((ahead(2) == 8 || ahead(2) == 127) || set6.holds(ahead(2)))) || set7.holds(ahead(1)) || (ahead(1) == 127 && (ahead(2) == 19 || set7.holds(ahead(2)))))) || (ahead(0) == 19 && ((ahead(1) == 8 && ((ahead(2) == 5 || ahead(2) == 10) || set8.holds(ahead(2)))) || (ahead(1) == 19 && ((ahead(2) == 6 || ahead(2) == 127) || set9.holds(ahead(2)))) || set7.holds(ahead(1)) || (ahead(1) == 127 && ((ahead(2) == 8 || ahead(2) == 19) || set10.holds(ahead(2)))))) || set11.holds(ahead(0)) || (ahead(0) == 127 && ((ahead(1) == 14 && ((ahead(2) == 19 || ahead(2) == 127) || set7.holds(ahead(2)))) || (ahead(1) == 19 && ((ahead(2) == 8 || ahead(2) == 19 || ahead(2) == 127) || set7.holds(ahead(2)))) || set11.holds(ahead(1))))) && takeIfMatches(&Rules::oC_RelationshipsPattern_link)) {
  }
  return true;
}

bool Rules::oC_NodePattern() {
  const std::uint32_t node = open(TreeRule::oC_NodePattern);
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (set2.holds(ahead(0))) {
    if (!oC_Variable()) {
      return false;
    }
    skip(127);
  }
  if (ahead(0) == 10) {
    if (!oC_NodeLabels()) {
      return false;
    }
    skip(127);
  }
  if ((ahead(0) == 24 || ahead(0) == 26)) {
    if (!oC_Properties()) {
      return false;
    }
    skip(127);
  }
  if (!take(7)) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_PatternElementChain() {
  if (!oC_RelationshipPattern()) {
    return false;
  }
  skip(127);
  if (!oC_NodePattern()) {
    return false;
  }
  return true;
}

bool Rules::oC_RelationshipPattern() {
  switch (ahead(0)) {
    case 14: case 27: case 28: case 29: case 30:
      if (!oC_LeftArrowHead()) {
        return false;
      }
      skip(127);
      if (!oC_Dash()) {
        return false;
      }
      skip(127);
      if (ahead(0) == 8) {
        if (!oC_RelationshipDetail()) {
          return false;
        }
      }
      skip(127);
      if (!oC_Dash()) {
        return false;
      }
      if (set9.holds(ahead(0)) || (ahead(0) == 127 && set9.holds(ahead(1)))) {
        skip(127);
        if (!oC_RightArrowHead()) {
          return false;
        }
      }
      break;
    case 19: case 35: case 36: case 37: case 38: case 39: case 40: case 41: case 42: case 43:
    case 44: case 45:
      if (!oC_Dash()) {
        return false;
      }
      skip(127);
      if (ahead(0) == 8) {
        if (!oC_RelationshipDetail()) {
          return false;
        }
      }
      skip(127);
      if (!oC_Dash()) {
        return false;
      }
      if (set9.holds(ahead(0)) || (ahead(0) == 127 && set9.holds(ahead(1)))) {
        skip(127);
        if (!oC_RightArrowHead()) {
          return false;
        }
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_RelationshipDetail() {
  const std::uint32_t node = open(TreeRule::oC_RelationshipDetail);
  if (!take(8)) {
    return false;
  }
  skip(127);
  if (set2.holds(ahead(0))) {
    if (!oC_Variable()) {
      return false;
    }
    skip(127);
  }
  if (ahead(0) == 10) {
    if (!oC_RelationshipTypes()) {
      return false;
    }
    skip(127);
  }
  if (ahead(0) == 5) {
    if (!oC_RangeLiteral()) {
      return false;
    }
  }
  if ((ahead(0) == 24 || ahead(0) == 26)) {
    if (!oC_Properties()) {
      return false;
    }
    skip(127);
  }
  if (!take(9)) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_Properties() {
  switch (ahead(0)) {
    case 24:
      if (!oC_MapLiteral()) {
        return false;
      }
      break;
    case 26:
      if (!oC_Parameter()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_RelationshipTypes() {
  if (!take(10)) {
    return false;
  }
  skip(127);
  while (true) {
    if (!oC_RelTypeName()) {
      return false;
    }
    if (!(ahead(0) == 11 || (ahead(0) == 127 && ahead(1) == 11))) {
      break;
    }
    skip(127);
    if (!take(11)) {
      return false;
    }
    skip(10);
    skip(127);
  }
  return true;
}

bool Rules::oC_NodeLabels() {
  while (true) {
    if (!oC_NodeLabel()) {
      return false;
    }
    if (!(ahead(0) == 10 || (ahead(0) == 127 && ahead(1) == 10))) {
      break;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_NodeLabel() {
  if (!take(10)) {
    return false;
  }
  skip(127);
  if (!oC_LabelName()) {
    return false;
  }
  return true;
}

bool Rules::oC_RangeLiteral() {
  if (!take(5)) {
    return false;
  }
  skip(127);
  if ((ahead(0) == 97 || ahead(0) == 98 || ahead(0) == 99)) {
    if (!oC_IntegerLiteral()) {
      return false;
    }
    skip(127);
  }
  if (ahead(0) == 12) {
    if (!take(12)) {
      return false;
    }
    skip(127);
    if ((ahead(0) == 97 || ahead(0) == 98 || ahead(0) == 99)) {
      if (!oC_IntegerLiteral()) {
        return false;
      }
      skip(127);
    }
  }
  return true;
}

bool Rules::oC_LabelName() {
  const std::uint32_t node = open(TreeRule::oC_LabelName);
  if (!oC_SchemaName()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_RelTypeName() {
  if (!oC_SchemaName()) {
    return false;
  }
  return true;
}

bool Rules::oC_PropertyExpression() {
  if (!oC_Atom()) {
    return false;
  }
  do {
    skip(127);
    if (!oC_PropertyLookup()) {
      return false;
    }
  } while (ahead(0) == 23 || (ahead(0) == 127 && ahead(1) == 23));
  return true;
}

bool Rules::oC_Expression() {
  const std::uint32_t node = open(TreeRule::oC_Expression);
  if (isStackUsedUp()) {
    return false;
  }
  if (!oC_OrExpression()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_OrExpression() {
  while (true) {
    if (!oC_XorExpression()) {
      return false;
    }
    if (!((ahead(0) == 127 && ahead(1) == 75))) {
      break;
    }
    if (!take(127)) {
      return false;
    }
    if (!take(75)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_XorExpression() {
  while (true) {
    if (!oC_AndExpression()) {
      return false;
    }
    if (!((ahead(0) == 127 && ahead(1) == 76))) {
      break;
    }
    if (!take(127)) {
      return false;
    }
    if (!take(76)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_AndExpression() {
  while (true) {
    if (!oC_NotExpression()) {
      return false;
    }
    if (!((ahead(0) == 127 && ahead(1) == 77))) {
      break;
    }
    if (!take(127)) {
      return false;
    }
    if (!take(77)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_NotExpression() {
  while (ahead(0) == 78) {
    if (!take(78)) {
      return false;
    }
    skip(127);
  }
  if (!oC_ComparisonExpression()) {
    return false;
  }
  return true;
}

bool Rules::oC_ComparisonExpression() {
  if (!oC_StringListNullPredicateExpression()) {
    return false;
  }
  while (set12.holds(ahead(0)) || (ahead(0) == 127 && set12.holds(ahead(1)))) {
    skip(127);
    if (!oC_PartialComparisonExpression()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_PartialComparisonExpression() {
  if (!takeOneOf(set12)) {
    return false;
  }
  skip(127);
  if (!oC_StringListNullPredicateExpression()) {
    return false;
  }
  return true;
}

bool Rules::oC_StringListNullPredicateExpression() {
  if (!oC_AddOrSubtractExpression()) {
    return false;
  }
  while ((ahead(0) == 127 && set13.holds(ahead(1)))) {
    unsigned chosen = 0;
    switch (ahead(0)) {
      case 127:
        switch (ahead(1)) {
          case 79: case 80: case 81:
            chosen = 1;
            break;
          case 82:
            chosen = 2;
            break;
          case 83:
            chosen = 3;
            break;
        }
        break;
    }
    switch (chosen) {
      case 1:
        if (!oC_StringPredicateExpression()) {
          return false;
        }
        break;
      case 2:
        if (!oC_ListPredicateExpression()) {
          return false;
        }
        break;
      case 3:
        if (!oC_NullPredicateExpression()) {
          return false;
        }
        break;
      default:
        return false;
    }
  }
  return true;
}

bool Rules::oC_StringPredicateExpression() {
  if (!take(127)) {
    return false;
  }
  switch (ahead(0)) {
    case 79:
      if (!take(79)) {
        return false;
      }
      if (!take(127)) {
        return false;
      }
      if (!take(61)) {
        return false;
      }
      break;
    case 80:
      if (!take(80)) {
        return false;
      }
      if (!take(127)) {
        return false;
      }
      if (!take(61)) {
        return false;
      }
      break;
    case 81:
      if (!take(81)) {
        return false;
      }
      break;
    default:
      return false;
  }
  skip(127);
  if (!oC_AddOrSubtractExpression()) {
    return false;
  }
  return true;
}

bool Rules::oC_ListPredicateExpression() {
  if (!take(127)) {
    return false;
  }
  if (!take(82)) {
    return false;
  }
  skip(127);
  if (!oC_AddOrSubtractExpression()) {
    return false;
  }
  return true;
}

bool Rules::oC_NullPredicateExpression() {
  if (!take(127)) {
    return false;
  }
  if (!take(83)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (ahead(0) == 78) {
    if (!take(78)) {
      return false;
    }
    if (!take(127)) {
      return false;
    }
  }
  if (!take(84)) {
    return false;
  }
  return true;
}

bool Rules::oC_AddOrSubtractExpression() {
  while (true) {
    if (!oC_MultiplyDivideModuloExpression()) {
      return false;
    }
    if (!((ahead(0) == 18 || ahead(0) == 19) || (ahead(0) == 127 && ((ahead(1) == 18 || ahead(1) == 19))))) {
      break;
    }
    skip(127);
    if (!takeOneOf(set14)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_MultiplyDivideModuloExpression() {
  while (true) {
    if (!oC_PowerOfExpression()) {
      return false;
    }
    if (!((ahead(0) == 5 || ahead(0) == 20 || ahead(0) == 21) || (ahead(0) == 127 && ((ahead(1) == 5 || ahead(1) == 20 || ahead(1) == 21))))) {
      break;
    }
    skip(127);
    if (!takeOneOf(set15)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_PowerOfExpression() {
  while (true) {
    if (!oC_UnaryAddOrSubtractExpression()) {
      return false;
    }
    if (!(ahead(0) == 22 || (ahead(0) == 127 && ahead(1) == 22))) {
      break;
    }
    skip(127);
    if (!take(22)) {
      return false;
    }
    skip(127);
  }
  return true;
}

bool Rules::oC_UnaryAddOrSubtractExpression() {
  if ((ahead(0) == 18 || ahead(0) == 19)) {
    if (!takeOneOf(set14)) {
      return false;
    }
    skip(127);
  }
  if (!oC_ListOperatorExpression()) {
    return false;
  }
  return true;
}

bool Rules::oC_ListOperatorExpression() {
  if (!oC_PropertyOrLabelsExpression()) {
    return false;
  }
  while (ahead(0) == 8 || (ahead(0) == 127 && ahead(1) == 8)) {
    skip(127);
    if (!take(8)) {
      return false;
    }
    switch (ahead(0)) {
      case 6: case 8: case 18: case 19: case 24: case 26: case 47: case 78: case 84: case 85:
      case 86: case 91: case 92: case 93: case 94: case 95: case 96: case 97: case 98: case 99:
      case 100: case 107: case 108: case 109: case 121: case 122: case 123: case 126:
        if (!oC_Expression()) {
          return false;
        }
        if (ahead(0) == 12) {
          if (!take(12)) {
            return false;
          }
          if (set16.holds(ahead(0))) {
            if (!oC_Expression()) {
              return false;
            }
          }
        }
        if (!take(9)) {
          return false;
        }
        break;
      case 12:
        if (!take(12)) {
          return false;
        }
        if (set16.holds(ahead(0))) {
          if (!oC_Expression()) {
            return false;
          }
        }
        if (!take(9)) {
          return false;
        }
        break;
      default:
        return false;
    }
  }
  return true;
}

bool Rules::oC_PropertyOrLabelsExpression() {
  const std::uint32_t node = open(TreeRule::oC_PropertyOrLabelsExpression);
  if (!oC_Atom()) {
    return false;
  }
  while (ahead(0) == 23 || (ahead(0) == 127 && ahead(1) == 23)) {
    skip(127);
    if (!oC_PropertyLookup()) {
      return false;
    }
  }
  if (ahead(0) == 10 || (ahead(0) == 127 && ahead(1) == 10)) {
    skip(127);
    if (!oC_NodeLabels()) {
      return false;
    }
  }
  close(node);
  return true;
}

bool Rules::oC_PropertyLookup() {
  if (!take(23)) {
    return false;
  }
  skip(127);
  if (!oC_PropertyKeyName()) {
    return false;
  }
  return true;
}

bool Rules::oC_Atom() {
  const std::uint32_t node = open(TreeRule::oC_Atom);
  unsigned chosen = 0;
  switch (ahead(0)) {
    case 6:
      switch (ahead(1)) {
        case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86: case 94: case 95:
        case 96: case 97: case 98: case 99: case 107: case 108: case 109:
          chosen = 9;
          break;
        case 7: case 10:
          chosen = 8;
          break;
        case 24:
          switch (ahead(2)) {
            case 25: case 46: case 47: case 48: case 49: case 50: case 51: case 52: case 53:
            case 54: case 55: case 56: case 57: case 58: case 61: case 62: case 63: case 64:
            case 65: case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75:
            case 76: case 77: case 78: case 79: case 80: case 81: case 82: case 83: case 84:
            case 85: case 86: case 87: case 88: case 89: case 90: case 91: case 92: case 93:
            case 94: case 95: case 96: case 100: case 111: case 112: case 113: case 114: case 115:
            case 116: case 117: case 118: case 119: case 120: case 121: case 122: case 123:
            case 126: case 127:
              chosen = 809;
              break;
          }
          break;
        case 26:
          switch (ahead(2)) {
            case 85: case 91: case 92: case 93: case 98: case 100: case 121: case 122: case 123:
            case 126:
              chosen = 809;
              break;
          }
          break;
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (ahead(2)) {
            case 3: case 5: case 6: case 8: case 13: case 14: case 15: case 16: case 17: case 18:
            case 19: case 20: case 21: case 22: case 23:
              chosen = 9;
              break;
            case 7: case 10: case 127:
              chosen = 809;
              break;
            case 24: case 26:
              chosen = 8;
              break;
          }
          break;
        case 127:
          switch (ahead(2)) {
            case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86: case 94: case 95:
            case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              chosen = 9;
              break;
            case 7: case 10:
              chosen = 8;
              break;
            case 24: case 26: case 85: case 91: case 92: case 93: case 100: case 121: case 122:
            case 123: case 126:
              chosen = 809;
              break;
          }
          break;
      }
      break;
    case 8:
      switch (ahead(1)) {
        case 6:
          switch (ahead(2)) {
            case 6: case 8: case 18: case 19: case 47: case 78: case 84: case 86: case 94: case 95:
            case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              chosen = 1;
              break;
            case 7: case 10: case 24: case 26: case 85: case 91: case 92: case 93: case 100:
            case 121: case 122: case 123: case 126: case 127:
              chosen = 106;
              break;
          }
          break;
        case 8: case 9: case 18: case 19: case 24: case 26: case 47: case 78: case 84: case 86:
        case 94: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
          chosen = 1;
          break;
        case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
          switch (ahead(2)) {
            case 2: case 5: case 6: case 8: case 9: case 10: case 13: case 14: case 15: case 16:
            case 17: case 18: case 19: case 20: case 21: case 22: case 23:
              chosen = 1;
              break;
            case 3:
              chosen = 106;
              break;
            case 127:
              chosen = 10506;
              break;
          }
          break;
        case 127:
          switch (ahead(2)) {
            case 6:
              chosen = 106;
              break;
            case 8: case 9: case 18: case 19: case 24: case 26: case 47: case 78: case 84: case 86:
            case 94: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
              chosen = 1;
              break;
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              chosen = 10506;
              break;
          }
          break;
      }
      break;
    case 24: case 84: case 95: case 96: case 97: case 98: case 99: case 107: case 108: case 109:
      chosen = 1;
      break;
    case 26:
      chosen = 2;
      break;
    case 47:
      chosen = 7;
      break;
    case 85:
      switch (ahead(1)) {
        case 0: case 1: case 2: case 3: case 5: case 7: case 8: case 9: case 10: case 11: case 12:
        case 13: case 14: case 15: case 16: case 17: case 18: case 19: case 20: case 21: case 22:
        case 25: case 46: case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57:
        case 58: case 59: case 61: case 62: case 68: case 69: case 70: case 71: case 72: case 87:
        case 88: case 89: case 90:
          chosen = 12;
          break;
        case 6:
          switch (ahead(2)) {
            case 5:
              chosen = 4;
              break;
            case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63: case 78:
            case 84: case 85: case 86: case 91: case 92: case 93: case 94: case 95: case 96:
            case 97: case 98: case 99: case 100: case 107: case 108: case 109: case 121: case 122:
            case 123: case 126:
              chosen = 10;
              break;
            case 127:
              chosen = 410;
              break;
          }
          break;
        case 23:
          switch (ahead(2)) {
            case 46: case 47: case 48: case 49: case 50: case 51: case 52: case 53: case 54:
            case 55: case 56: case 57: case 58: case 61: case 62: case 63: case 64: case 65:
            case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75: case 76:
            case 77: case 78: case 79: case 80: case 81: case 82: case 83: case 84: case 86:
            case 87: case 88: case 89: case 90: case 94: case 95: case 96: case 111: case 112:
            case 113: case 114: case 115: case 116: case 117: case 118: case 119: case 120:
            case 127:
              chosen = 12;
              break;
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              chosen = 1012;
              break;
          }
          break;
        case 127:
          switch (ahead(2)) {
            case 0: case 1: case 2: case 3: case 5: case 7: case 8: case 9: case 10: case 11:
            case 13: case 14: case 15: case 16: case 17: case 18: case 19: case 20: case 21:
            case 22: case 23: case 25: case 46: case 48: case 49: case 50: case 51: case 52:
            case 53: case 54: case 55: case 56: case 57: case 58: case 59: case 61: case 62:
            case 64: case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75:
            case 76: case 77: case 79: case 80: case 81: case 82: case 83: case 87: case 88:
            case 89: case 90:
              chosen = 12;
              break;
            case 6:
              chosen = 410;
              break;
          }
          break;
      }
      break;
    case 86:
      chosen = 3;
      break;
    case 91: case 92: case 93:
      switch (ahead(1)) {
        case 0: case 1: case 2: case 3: case 5: case 7: case 8: case 9: case 10: case 11: case 12:
        case 13: case 14: case 15: case 16: case 17: case 18: case 19: case 20: case 21: case 22:
        case 25: case 46: case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57:
        case 58: case 59: case 61: case 62: case 68: case 69: case 70: case 71: case 72: case 87:
        case 88: case 89: case 90:
          chosen = 12;
          break;
        case 6:
          switch (ahead(2)) {
            case 6: case 7: case 8: case 18: case 19: case 24: case 26: case 47: case 63: case 78:
            case 84: case 86: case 94: case 95: case 96: case 97: case 98: case 99: case 107:
            case 108: case 109:
              chosen = 10;
              break;
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
            case 127:
              chosen = 710;
              break;
          }
          break;
        case 23:
          switch (ahead(2)) {
            case 46: case 47: case 48: case 49: case 50: case 51: case 52: case 53: case 54:
            case 55: case 56: case 57: case 58: case 61: case 62: case 63: case 64: case 65:
            case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75: case 76:
            case 77: case 78: case 79: case 80: case 81: case 82: case 83: case 84: case 86:
            case 87: case 88: case 89: case 90: case 94: case 95: case 96: case 111: case 112:
            case 113: case 114: case 115: case 116: case 117: case 118: case 119: case 120:
            case 127:
              chosen = 12;
              break;
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              chosen = 1012;
              break;
          }
          break;
        case 127:
          switch (ahead(2)) {
            case 0: case 1: case 2: case 3: case 5: case 7: case 8: case 9: case 10: case 11:
            case 13: case 14: case 15: case 16: case 17: case 18: case 19: case 20: case 21:
            case 22: case 23: case 25: case 46: case 48: case 49: case 50: case 51: case 52:
            case 53: case 54: case 55: case 56: case 57: case 58: case 59: case 61: case 62:
            case 64: case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75:
            case 76: case 77: case 79: case 80: case 81: case 82: case 83: case 87: case 88:
            case 89: case 90:
              chosen = 12;
              break;
            case 6:
              chosen = 710;
              break;
          }
          break;
      }
      break;
    case 94:
      chosen = 11;
      break;
    case 100: case 121: case 122: case 123: case 126:
      switch (ahead(1)) {
        case 0: case 1: case 2: case 3: case 5: case 7: case 8: case 9: case 10: case 11: case 12:
        case 13: case 14: case 15: case 16: case 17: case 18: case 19: case 20: case 21: case 22:
        case 25: case 46: case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57:
        case 58: case 59: case 61: case 62: case 68: case 69: case 70: case 71: case 72: case 87:
        case 88: case 89: case 90:
          chosen = 12;
          break;
        case 6:
          chosen = 10;
          break;
        case 23:
          switch (ahead(2)) {
            case 46: case 47: case 48: case 49: case 50: case 51: case 52: case 53: case 54:
            case 55: case 56: case 57: case 58: case 61: case 62: case 63: case 64: case 65:
            case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75: case 76:
            case 77: case 78: case 79: case 80: case 81: case 82: case 83: case 84: case 86:
            case 87: case 88: case 89: case 90: case 94: case 95: case 96: case 111: case 112:
            case 113: case 114: case 115: case 116: case 117: case 118: case 119: case 120:
            case 127:
              chosen = 12;
              break;
            case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
              chosen = 1012;
              break;
          }
          break;
        case 127:
          switch (ahead(2)) {
            case 0: case 1: case 2: case 3: case 5: case 7: case 8: case 9: case 10: case 11:
            case 13: case 14: case 15: case 16: case 17: case 18: case 19: case 20: case 21:
            case 22: case 23: case 25: case 46: case 48: case 49: case 50: case 51: case 52:
            case 53: case 54: case 55: case 56: case 57: case 58: case 59: case 61: case 62:
            case 64: case 66: case 67: case 68: case 69: case 70: case 71: case 72: case 75:
            case 76: case 77: case 79: case 80: case 81: case 82: case 83: case 87: case 88:
            case 89: case 90:
              chosen = 12;
              break;
            case 6:
              chosen = 10;
              break;
          }
          break;
      }
      break;
  }
  switch (chosen) {
    case 1:
      if (!oC_Literal()) {
        return false;
      }
      break;
    case 2:
      if (!oC_Parameter()) {
        return false;
      }
      break;
    case 3:
      if (!oC_CaseExpression()) {
        return false;
      }
      break;
    case 4:
      if (!oC_Atom_4()) {
        return false;
      }
      break;
    case 7:
      if (!oC_Quantifier()) {
        return false;
      }
      break;
    case 8:
      if (!oC_PatternPredicate()) {
        return false;
      }
      break;
    case 9:
      if (!oC_ParenthesizedExpression()) {
        return false;
      }
      break;
    case 10:
      if (!oC_FunctionInvocation()) {
        return false;
      }
      break;
    case 11:
      if (!oC_ExistentialSubquery()) {
        return false;
      }
      break;
    case 12:
      if (!oC_Variable()) {
        return false;
      }
      break;
    case 10506: {
      static constexpr std::array candidates{&Rules::oC_Literal, &Rules::oC_ListComprehension, &Rules::oC_PatternComprehension};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    case 106: {
      static constexpr std::array candidates{&Rules::oC_Literal, &Rules::oC_PatternComprehension};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    case 410: {
      static constexpr std::array candidates{&Rules::oC_Atom_4, &Rules::oC_FunctionInvocation};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    case 710: {
      static constexpr std::array candidates{&Rules::oC_Quantifier, &Rules::oC_FunctionInvocation};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    case 809: {
      static constexpr std::array candidates{&Rules::oC_PatternPredicate, &Rules::oC_ParenthesizedExpression};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    case 1012: {
      static constexpr std::array candidates{&Rules::oC_FunctionInvocation, &Rules::oC_Variable};
      if (!takeFirstOf(candidates)) {
        return false;
      }
      break;
    }
    default:
      return false;
  }
  close(node);
  return true;
}

bool Rules::oC_CaseExpression() {
  if (!take(86)) {
    return false;
  }
  if (set16.holds(ahead(0)) || (ahead(0) == 127 && set16.holds(ahead(1)))) {
    skip(127);
    if (!oC_Expression()) {
      return false;
    }
  }
  do {
    skip(127);
    if (!oC_CaseAlternative()) {
      return false;
    }
  } while (ahead(0) == 89 || (ahead(0) == 127 && ahead(1) == 89));
  if (ahead(0) == 87 || (ahead(0) == 127 && ahead(1) == 87)) {
    skip(127);
    if (!take(87)) {
      return false;
    }
    skip(127);
    if (!oC_Expression()) {
      return false;
    }
  }
  skip(127);
  if (!take(88)) {
    return false;
  }
  return true;
}

bool Rules::oC_CaseAlternative() {
  if (!take(89)) {
    return false;
  }
  skip(127);
  if (!oC_Expression()) {
    return false;
  }
  skip(127);
  if (!take(90)) {
    return false;
  }
  skip(127);
  if (!oC_Expression()) {
    return false;
  }
  return true;
}

bool Rules::oC_ListComprehension() {
  const std::uint32_t node = open(TreeRule::oC_ListComprehension);
  if (!take(8)) {
    return false;
  }
  skip(127);
  if (!oC_FilterExpression()) {
    return false;
  }
  if (ahead(0) == 11 || (ahead(0) == 127 && ahead(1) == 11)) {
    skip(127);
    if (!take(11)) {
      return false;
    }
    skip(127);
    if (!oC_Expression()) {
      return false;
    }
  }
  skip(127);
  if (!take(9)) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_PatternComprehension() {
  const std::uint32_t node = open(TreeRule::oC_PatternComprehension);
  if (!take(8)) {
    return false;
  }
  skip(127);
  if (set2.holds(ahead(0))) {
    if (!oC_Variable()) {
      return false;
    }
    skip(127);
    if (!take(3)) {
      return false;
    }
    skip(127);
  }
  if (!oC_RelationshipsPattern()) {
    return false;
  }
  skip(127);
  if (ahead(0) == 72) {
    if (!oC_Where()) {
      return false;
    }
    skip(127);
  }
  if (!take(11)) {
    return false;
  }
  skip(127);
  if (!oC_Expression()) {
    return false;
  }
  skip(127);
  if (!take(9)) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_Quantifier() {
  const std::uint32_t node = open(TreeRule::oC_Quantifier);
  if (!takeOneOf(set17)) {
    return false;
  }
  skip(127);
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (!oC_FilterExpression()) {
    return false;
  }
  skip(127);
  if (!take(7)) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_FilterExpression() {
  if (!oC_IdInColl()) {
    return false;
  }
  if (ahead(0) == 72 || (ahead(0) == 127 && ahead(1) == 72)) {
    skip(127);
    if (!oC_Where()) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_PatternPredicate() {
  const std::uint32_t node = open(TreeRule::oC_PatternPredicate);
  if (!oC_RelationshipsPattern()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_ParenthesizedExpression() {
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (!oC_Expression()) {
    return false;
  }
  skip(127);
  if (!take(7)) {
    return false;
  }
  return true;
}

bool Rules::oC_IdInColl() {
  if (!oC_Variable()) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!take(82)) {
    return false;
  }
  if (!take(127)) {
    return false;
  }
  if (!oC_Expression()) {
    return false;
  }
  return true;
}

bool Rules::oC_FunctionInvocation() {
  if (!oC_FunctionName()) {
    return false;
  }
  skip(127);
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (ahead(0) == 63) {
    if (!take(63)) {
      return false;
    }
    skip(127);
  }
  if (set16.holds(ahead(0))) {
    if (!oC_Expression()) {
      return false;
    }
    skip(127);
    while (ahead(0) == 2) {
      if (!take(2)) {
        return false;
      }
      skip(127);
      if (!oC_Expression()) {
        return false;
      }
      skip(127);
    }
  }
  if (!take(7)) {
    return false;
  }
  return true;
}

bool Rules::oC_FunctionName() {
  if (!oC_Namespace()) {
    return false;
  }
  if (!oC_SymbolicName()) {
    return false;
  }
  return true;
}

bool Rules::oC_ExistentialSubquery() {
  const std::uint32_t node = open(TreeRule::oC_ExistentialSubquery);
  if (isStackUsedUp()) {
    return false;
  }
  if (!take(94)) {
    return false;
  }
  skip(127);
  if (!take(24)) {
    return false;
  }
  skip(127);
  switch (ahead(0)) {
    case 6: case 73: case 74: case 85: case 91: case 92: case 93: case 100: case 121: case 122:
    case 123: case 126:
      if (!oC_Pattern()) {
        return false;
      }
      if (ahead(0) == 72 || (ahead(0) == 127 && ahead(1) == 72)) {
        skip(127);
        if (!oC_Where()) {
          return false;
        }
      }
      break;
    case 48: case 49: case 50: case 52: case 54: case 55: case 56: case 57: case 58: case 59:
    case 61: case 62:
      if (!oC_RegularQuery()) {
        return false;
      }
      break;
    default:
      return false;
  }
  skip(127);
  if (!take(25)) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_ExplicitProcedureInvocation() {
  if (!oC_ProcedureName()) {
    return false;
  }
  skip(127);
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (set16.holds(ahead(0))) {
    if (!oC_Expression()) {
      return false;
    }
    skip(127);
    while (ahead(0) == 2) {
      if (!take(2)) {
        return false;
      }
      skip(127);
      if (!oC_Expression()) {
        return false;
      }
      skip(127);
    }
  }
  if (!take(7)) {
    return false;
  }
  return true;
}

bool Rules::oC_ImplicitProcedureInvocation() {
  if (!oC_ProcedureName()) {
    return false;
  }
  return true;
}

bool Rules::oC_ProcedureResultField() {
  if (!oC_SymbolicName()) {
    return false;
  }
  return true;
}

bool Rules::oC_ProcedureName() {
  if (!oC_Namespace()) {
    return false;
  }
  if (!oC_SymbolicName()) {
    return false;
  }
  return true;
}

bool Rules::oC_Namespace() {
  while ((set2.holds(ahead(0)) && ahead(1) == 23)) {
    if (!oC_SymbolicName()) {
      return false;
    }
    if (!take(23)) {
      return false;
    }
  }
  return true;
}

bool Rules::oC_Variable() {
  const std::uint32_t node = open(TreeRule::oC_Variable);
  if (!oC_SymbolicName()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_Literal() {
  switch (ahead(0)) {
    case 8:
      if (!oC_ListLiteral()) {
        return false;
      }
      break;
    case 24:
      if (!oC_MapLiteral()) {
        return false;
      }
      break;
    case 84:
      if (!take(84)) {
        return false;
      }
      break;
    case 95: case 96:
      if (!oC_BooleanLiteral()) {
        return false;
      }
      break;
    case 97: case 98: case 99: case 107: case 108:
      if (!oC_NumberLiteral()) {
        return false;
      }
      break;
    case 109:
      if (!take(109)) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_BooleanLiteral() {
  if (!takeOneOf(set18)) {
    return false;
  }
  return true;
}

bool Rules::oC_NumberLiteral() {
  switch (ahead(0)) {
    case 97: case 98: case 99:
      if (!oC_IntegerLiteral()) {
        return false;
      }
      break;
    case 107: case 108:
      if (!oC_DoubleLiteral()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_IntegerLiteral() {
  if (!takeOneOf(set19)) {
    return false;
  }
  return true;
}

bool Rules::oC_DoubleLiteral() {
  if (!takeOneOf(set20)) {
    return false;
  }
  return true;
}

bool Rules::oC_ListLiteral() {
  if (!take(8)) {
    return false;
  }
  skip(127);
  if (set16.holds(ahead(0))) {
    if (!oC_Expression()) {
      return false;
    }
    skip(127);
    while (ahead(0) == 2) {
      if (!take(2)) {
        return false;
      }
      skip(127);
      if (!oC_Expression()) {
        return false;
      }
      skip(127);
    }
  }
  if (!take(9)) {
    return false;
  }
  return true;
}

bool Rules::oC_MapLiteral() {
  if (!take(24)) {
    return false;
  }
  skip(127);
  if (set21.holds(ahead(0))) {
    if (!oC_PropertyKeyName()) {
      return false;
    }
    skip(127);
    if (!take(10)) {
      return false;
    }
    skip(127);
    if (!oC_Expression()) {
      return false;
    }
    skip(127);
    while (ahead(0) == 2) {
      if (!take(2)) {
        return false;
      }
      skip(127);
      if (!oC_PropertyKeyName()) {
        return false;
      }
      skip(127);
      if (!take(10)) {
        return false;
      }
      skip(127);
      if (!oC_Expression()) {
        return false;
      }
      skip(127);
    }
  }
  if (!take(25)) {
    return false;
  }
  return true;
}

bool Rules::oC_PropertyKeyName() {
  const std::uint32_t node = open(TreeRule::oC_PropertyKeyName);
  if (!oC_SchemaName()) {
    return false;
  }
  close(node);
  return true;
}

bool Rules::oC_Parameter() {
  if (!take(26)) {
    return false;
  }
  switch (ahead(0)) {
    case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
      if (!oC_SymbolicName()) {
        return false;
      }
      break;
    case 98:
      if (!take(98)) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_SchemaName() {
  switch (ahead(0)) {
    case 46: case 47: case 48: case 49: case 50: case 51: case 52: case 53: case 54: case 55:
    case 56: case 57: case 58: case 61: case 62: case 63: case 64: case 65: case 66: case 67:
    case 68: case 69: case 70: case 71: case 72: case 75: case 76: case 77: case 78: case 79:
    case 80: case 81: case 82: case 83: case 84: case 86: case 87: case 88: case 89: case 90:
    case 94: case 95: case 96: case 111: case 112: case 113: case 114: case 115: case 116: case 117:
    case 118: case 119: case 120:
      if (!oC_ReservedWord()) {
        return false;
      }
      break;
    case 85: case 91: case 92: case 93: case 100: case 121: case 122: case 123: case 126:
      if (!oC_SymbolicName()) {
        return false;
      }
      break;
    default:
      return false;
  }
  return true;
}

bool Rules::oC_ReservedWord() {
  if (!takeOneOf(set22)) {
    return false;
  }
  return true;
}

bool Rules::oC_SymbolicName() {
  if (!takeOneOf(set2)) {
    return false;
  }
  return true;
}

bool Rules::oC_LeftArrowHead() {
  if (!takeOneOf(set23)) {
    return false;
  }
  return true;
}

bool Rules::oC_RightArrowHead() {
  if (!takeOneOf(set9)) {
    return false;
  }
  return true;
}

bool Rules::oC_Dash() {
  if (!takeOneOf(set6)) {
    return false;
  }
  return true;
}

bool Rules::oC_RelationshipsPattern_link() {
  skip(127);
  if (!oC_PatternElementChain()) {
    return false;
  }
  return true;
}

bool Rules::oC_Atom_4() {
  if (!take(85)) {
    return false;
  }
  skip(127);
  if (!take(6)) {
    return false;
  }
  skip(127);
  if (!take(5)) {
    return false;
  }
  skip(127);
  if (!take(7)) {
    return false;
  }
  return true;
}

}  // namespace

Verdict parseQuery(SyntaxTree& tree) { return Rules(tree).parse(&Rules::oC_Cypher); }

Verdict parseExpression(SyntaxTree& tree) {
  return Rules(tree).parse(&Rules::oC_Expression, 127);
}

}  // namespace vorn
