// The openCypher language that VornLib accepts.
//
// The order of the rules is part of the grammar. The place of a parser rule is its index. The quoted
// literals of the parser rules become token types 1 to 45 in the order of their first occurrence. Of
// two lexer rules that match the same text the first one wins. White space and comments reach the
// parser as the token SP; each production says where they may (SP?) or must (SP) stand. A production
// that looks irregular beside its neighbours is so on purpose.
//
// `make grammar` writes the sources under generated/ anew.

grammar Cypher;

// The token NULL becomes an enumerator, so the C library's macro of that name must not be defined.
@lexer::postinclude {
#undef NULL
}

@parser::postinclude {
#undef NULL
}

// The generated code builds its static data inside std::call_once, which on some systems waits for ever
// after an exception has left it. So these functions build the data before and then raise the flag.
// The generated code never frees the data. At the end of the process that is right, since other threads
// may still use it. These functions free it when a host unloads the library. Newer releases of the tool
// hold the data by a std::unique_ptr. They also have a flag and a call_once() of their own, which the
// compiler finds by the type of the flag.
@lexer::definitions {
  namespace vorn {
  void buildLexerTables() {
    if (cypherlexerLexerStaticData == nullptr) {
      cypherlexerLexerInitialize();
    }
    call_once(cypherlexerLexerOnceFlag, [] {});
  }

  void releaseLexerTables() {
    const std::unique_ptr<CypherLexerStaticData> tables(
        std::exchange(cypherlexerLexerStaticData, nullptr));
  }
  }
}

@parser::definitions {
  namespace vorn {
  void buildParserTables() {
    if (cypherParserStaticData == nullptr) {
      cypherParserInitialize();
    }
    call_once(cypherParserOnceFlag, [] {});
  }

  void releaseParserTables() {
    const std::unique_ptr<CypherParserStaticData> tables(
        std::exchange(cypherParserStaticData, nullptr));
  }
  }
}

oC_Cypher : SP? oC_Statement ( SP? ';' )? SP? EOF ;

oC_Statement : oC_Query ;

oC_Query : oC_RegularQuery | oC_StandaloneCall ;

oC_RegularQuery : oC_SingleQuery ( SP? oC_Union )* ;

// ALL needs white space before it.
oC_Union
    : UNION SP ALL SP? oC_SingleQuery
    | UNION SP? oC_SingleQuery
    ;

oC_SingleQuery : oC_SinglePartQuery | oC_MultiPartQuery ;

// A part that only reads must end in RETURN; one that updates may.
oC_SinglePartQuery
    : ( oC_ReadingClause SP? )* oC_Return
    | ( oC_ReadingClause SP? )* oC_UpdatingClause ( SP? oC_UpdatingClause )* ( SP? oC_Return )?
    ;

oC_MultiPartQuery
    : ( ( oC_ReadingClause SP? )* ( oC_UpdatingClause SP? )* oC_With SP? )+ oC_SinglePartQuery
    ;

oC_UpdatingClause : oC_Create | oC_Merge | oC_Delete | oC_Set | oC_Remove ;

oC_ReadingClause : oC_Match | oC_Unwind | oC_InQueryCall ;

oC_Match : ( OPTIONAL SP )? MATCH SP? oC_Pattern ( SP? oC_Where )? ;

oC_Unwind : UNWIND SP? oC_Expression SP AS SP oC_Variable ;

oC_Merge : MERGE SP? oC_PatternPart ( SP oC_MergeAction )* ;

oC_MergeAction
    : ON SP MATCH SP oC_Set
    | ON SP CREATE SP oC_Set
    ;

oC_Create : CREATE SP? oC_Pattern ;

oC_Set : SET SP? oC_SetItem ( SP? ',' SP? oC_SetItem )* ;

oC_SetItem
    : oC_PropertyExpression SP? '=' SP? oC_Expression
    | oC_Variable SP? '=' SP? oC_Expression
    | oC_Variable SP? '+=' SP? oC_Expression
    | oC_Variable SP? oC_NodeLabels
    ;

oC_Delete : ( DETACH SP )? DELETE SP? oC_Expression ( SP? ',' SP? oC_Expression )* ;

// Unlike SET, REMOVE demands white space before its first item.
oC_Remove : REMOVE SP oC_RemoveItem ( SP? ',' SP? oC_RemoveItem )* ;

// Unlike in a SET item, a variable and its labels must be adjacent here.
oC_RemoveItem
    : oC_Variable oC_NodeLabels
    | oC_PropertyExpression
    ;

// A CALL inside a query needs its argument list and cannot YIELD *.
oC_InQueryCall : CALL SP oC_ExplicitProcedureInvocation ( SP? YIELD SP oC_YieldItems )? ;

oC_StandaloneCall
    : CALL SP ( oC_ExplicitProcedureInvocation | oC_ImplicitProcedureInvocation ) ( SP? YIELD SP ( '*' | oC_YieldItems ) )?
    ;

oC_YieldItems : oC_YieldItem ( SP? ',' SP? oC_YieldItem )* ( SP? oC_Where )? ;

oC_YieldItem : ( oC_ProcedureResultField SP AS SP )? oC_Variable ;

oC_With : WITH oC_ProjectionBody ( SP? oC_Where )? ;

oC_Return : RETURN oC_ProjectionBody ;

// White space is demanded before the items, also after DISTINCT.
oC_ProjectionBody
    : ( SP? DISTINCT )? SP oC_ProjectionItems ( SP oC_Order )? ( SP oC_Skip )? ( SP oC_Limit )?
    ;

oC_ProjectionItems
    : '*' ( SP? ',' SP? oC_ProjectionItem )*
    | oC_ProjectionItem ( SP? ',' SP? oC_ProjectionItem )*
    ;

oC_ProjectionItem
    : oC_Expression SP AS SP oC_Variable
    | oC_Expression
    ;

// The only comma-separated list that admits no white space before its commas.
oC_Order : ORDER SP BY SP oC_SortItem ( ',' SP? oC_SortItem )* ;

oC_Skip : L_SKIP SP oC_Expression ;

oC_Limit : LIMIT SP oC_Expression ;

oC_SortItem : oC_Expression ( SP? ( ASCENDING | ASC | DESCENDING | DESC ) )? ;

oC_Where : WHERE SP oC_Expression ;

oC_Pattern : oC_PatternPart ( SP? ',' SP? oC_PatternPart )* ;

oC_PatternPart
    : oC_Variable SP? '=' SP? oC_AnonymousPatternPart
    | oC_AnonymousPatternPart
    ;

oC_AnonymousPatternPart : oC_ShortestPathPattern | oC_PatternElement ;

oC_ShortestPathPattern
    : SHORTESTPATH SP? '(' SP? oC_PatternElement SP? ')'
    | ALLSHORTESTPATHS SP? '(' SP? oC_PatternElement SP? ')'
    ;

// No white space just inside the parentheses of the second form.
oC_PatternElement
    : oC_NodePattern ( SP? oC_PatternElementChain )*
    | '(' oC_PatternElement ')'
    ;

oC_RelationshipsPattern : oC_NodePattern ( SP? oC_PatternElementChain )+ ;

oC_NodePattern
    : '(' SP? ( oC_Variable SP? )? ( oC_NodeLabels SP? )? ( oC_Properties SP? )? ')'
    ;

oC_PatternElementChain : oC_RelationshipPattern SP? oC_NodePattern ;

// The order is: both heads, left head, right head, no head.
oC_RelationshipPattern
    : oC_LeftArrowHead SP? oC_Dash SP? oC_RelationshipDetail? SP? oC_Dash SP? oC_RightArrowHead
    | oC_LeftArrowHead SP? oC_Dash SP? oC_RelationshipDetail? SP? oC_Dash
    | oC_Dash SP? oC_RelationshipDetail? SP? oC_Dash SP? oC_RightArrowHead
    | oC_Dash SP? oC_RelationshipDetail? SP? oC_Dash
    ;

// The range brings its own trailing white space.
oC_RelationshipDetail
    : '[' SP? ( oC_Variable SP? )? ( oC_RelationshipTypes SP? )? oC_RangeLiteral? ( oC_Properties SP? )? ']'
    ;

oC_Properties : oC_MapLiteral | oC_Parameter ;

// The colon after '|' is optional.
oC_RelationshipTypes : ':' SP? oC_RelTypeName ( SP? '|' ':'? SP? oC_RelTypeName )* ;

oC_NodeLabels : oC_NodeLabel ( SP? oC_NodeLabel )* ;

oC_NodeLabel : ':' SP? oC_LabelName ;

oC_RangeLiteral : '*' SP? ( oC_IntegerLiteral SP? )? ( '..' SP? ( oC_IntegerLiteral SP? )? )? ;

oC_LabelName : oC_SchemaName ;

oC_RelTypeName : oC_SchemaName ;

oC_PropertyExpression : oC_Atom ( SP? oC_PropertyLookup )+ ;

// There is no EOF at the end: text after a complete expression is left alone.
oC_Expression : oC_OrExpression ;

// OR, XOR and AND demand white space on both sides, even next to parentheses.
oC_OrExpression : oC_XorExpression ( SP OR SP oC_XorExpression )* ;

oC_XorExpression : oC_AndExpression ( SP XOR SP oC_AndExpression )* ;

oC_AndExpression : oC_NotExpression ( SP AND SP oC_NotExpression )* ;

oC_NotExpression : ( NOT SP? )* oC_ComparisonExpression ;

// Comparisons chain; they do not nest.
oC_ComparisonExpression
    : oC_StringListNullPredicateExpression ( SP? oC_PartialComparisonExpression )*
    ;

oC_PartialComparisonExpression
    : '=' SP? oC_StringListNullPredicateExpression
    | '<>' SP? oC_StringListNullPredicateExpression
    | '<' SP? oC_StringListNullPredicateExpression
    | '>' SP? oC_StringListNullPredicateExpression
    | '<=' SP? oC_StringListNullPredicateExpression
    | '>=' SP? oC_StringListNullPredicateExpression
    ;

// Each of these predicates demands white space before its keyword.
oC_StringListNullPredicateExpression
    : oC_AddOrSubtractExpression ( oC_StringPredicateExpression | oC_ListPredicateExpression | oC_NullPredicateExpression )*
    ;

oC_StringPredicateExpression
    : ( SP STARTS SP WITH | SP ENDS SP WITH | SP CONTAINS ) SP? oC_AddOrSubtractExpression
    ;

oC_ListPredicateExpression : SP IN SP? oC_AddOrSubtractExpression ;

oC_NullPredicateExpression
    : SP IS SP NULL
    | SP IS SP NOT SP NULL
    ;

oC_AddOrSubtractExpression
    : oC_MultiplyDivideModuloExpression ( SP? '+' SP? oC_MultiplyDivideModuloExpression | SP? '-' SP? oC_MultiplyDivideModuloExpression )*
    ;

oC_MultiplyDivideModuloExpression
    : oC_PowerOfExpression ( SP? '*' SP? oC_PowerOfExpression | SP? '/' SP? oC_PowerOfExpression | SP? '%' SP? oC_PowerOfExpression )*
    ;

oC_PowerOfExpression
    : oC_UnaryAddOrSubtractExpression ( SP? '^' SP? oC_UnaryAddOrSubtractExpression )*
    ;

// One sign at most, and it binds tighter than '^'.
oC_UnaryAddOrSubtractExpression
    : oC_ListOperatorExpression
    | ( '+' | '-' ) SP? oC_ListOperatorExpression
    ;

// No white space just inside the brackets.
oC_ListOperatorExpression
    : oC_PropertyOrLabelsExpression ( SP? '[' oC_Expression ']' | SP? '[' oC_Expression? '..' oC_Expression? ']' )*
    ;

oC_PropertyOrLabelsExpression : oC_Atom ( SP? oC_PropertyLookup )* ( SP? oC_NodeLabels )? ;

oC_PropertyLookup : '.' SP? oC_PropertyKeyName ;

// If several alternatives fit a text, the first of them is taken.
oC_Atom
    : oC_Literal
    | oC_Parameter
    | oC_CaseExpression
    | COUNT SP? '(' SP? '*' SP? ')'
    | oC_ListComprehension
    | oC_PatternComprehension
    | oC_Quantifier
    | oC_PatternPredicate
    | oC_ParenthesizedExpression
    | oC_FunctionInvocation
    | oC_ExistentialSubquery
    | oC_Variable
    ;

oC_CaseExpression
    : ( CASE ( SP? oC_CaseAlternative )+ | CASE SP? oC_Expression ( SP? oC_CaseAlternative )+ ) ( SP? ELSE SP? oC_Expression )? SP? END
    ;

oC_CaseAlternative : WHEN SP? oC_Expression SP? THEN SP? oC_Expression ;

oC_ListComprehension : '[' SP? oC_FilterExpression ( SP? '|' SP? oC_Expression )? SP? ']' ;

oC_PatternComprehension
    : '[' SP? ( oC_Variable SP? '=' SP? )? oC_RelationshipsPattern SP? ( oC_Where SP? )? '|' SP? oC_Expression SP? ']'
    ;

// ANY, NONE and SINGLE are symbolic names too; ALL is not.
oC_Quantifier
    : ALL SP? '(' SP? oC_FilterExpression SP? ')'
    | ANY SP? '(' SP? oC_FilterExpression SP? ')'
    | NONE SP? '(' SP? oC_FilterExpression SP? ')'
    | SINGLE SP? '(' SP? oC_FilterExpression SP? ')'
    ;

oC_FilterExpression : oC_IdInColl ( SP? oC_Where )? ;

oC_PatternPredicate : oC_RelationshipsPattern ;

oC_ParenthesizedExpression : '(' SP? oC_Expression SP? ')' ;

oC_IdInColl : oC_Variable SP IN SP oC_Expression ;

oC_FunctionInvocation
    : oC_FunctionName SP? '(' SP? ( DISTINCT SP? )? ( oC_Expression SP? ( ',' SP? oC_Expression SP? )* )? ')'
    ;

oC_FunctionName : oC_Namespace oC_SymbolicName ;

// EXISTS is a reserved word, so EXISTS( ... ) is no function invocation.
oC_ExistentialSubquery
    : EXISTS SP? '{' SP? ( oC_RegularQuery | oC_Pattern ( SP? oC_Where )? ) SP? '}'
    ;

oC_ExplicitProcedureInvocation
    : oC_ProcedureName SP? '(' SP? ( oC_Expression SP? ( ',' SP? oC_Expression SP? )* )? ')'
    ;

oC_ImplicitProcedureInvocation : oC_ProcedureName ;

oC_ProcedureResultField : oC_SymbolicName ;

oC_ProcedureName : oC_Namespace oC_SymbolicName ;

// No white space around the dots of a qualified name.
oC_Namespace : ( oC_SymbolicName '.' )* ;

oC_Variable : oC_SymbolicName ;

oC_Literal
    : oC_BooleanLiteral
    | NULL
    | oC_NumberLiteral
    | StringLiteral
    | oC_ListLiteral
    | oC_MapLiteral
    ;

oC_BooleanLiteral : TRUE | FALSE ;

oC_NumberLiteral : oC_DoubleLiteral | oC_IntegerLiteral ;

oC_IntegerLiteral : HexInteger | DecimalInteger | OctalInteger ;

oC_DoubleLiteral : ExponentDecimalReal | RegularDecimalReal ;

oC_ListLiteral : '[' SP? ( oC_Expression SP? ( ',' SP? oC_Expression SP? )* )? ']' ;

oC_MapLiteral
    : '{' SP? ( oC_PropertyKeyName SP? ':' SP? oC_Expression SP? ( ',' SP? oC_PropertyKeyName SP? ':' SP? oC_Expression SP? )* )? '}'
    ;

oC_PropertyKeyName : oC_SchemaName ;

// No white space after '$'.
oC_Parameter : '$' ( oC_SymbolicName | DecimalInteger ) ;

oC_SchemaName : oC_SymbolicName | oC_ReservedWord ;

// CALL, YIELD, SHORTESTPATH and ALLSHORTESTPATHS are missing on purpose: they are no name at all.
oC_ReservedWord
    : UNION | ALL | OPTIONAL | MATCH | UNWIND | AS | MERGE | ON | CREATE | SET | DETACH | DELETE
    | REMOVE | WITH | RETURN | DISTINCT | ORDER | BY | L_SKIP | LIMIT | ASCENDING | ASC
    | DESCENDING | DESC | WHERE | OR | XOR | AND | NOT | STARTS | ENDS | CONTAINS | IN | IS
    | NULL | CASE | ELSE | END | WHEN | THEN | EXISTS | TRUE | FALSE | CONSTRAINT | DO | FOR
    | REQUIRE | UNIQUE | MANDATORY | SCALAR | OF | ADD | DROP
    ;

// HexLetter is a name because a lone letter from A to F lexes as one.
oC_SymbolicName
    : COUNT | ANY | NONE | SINGLE | HexLetter | FILTER | EXTRACT | UnescapedSymbolicName
    | EscapedSymbolicName
    ;

// The typographic heads and dashes mean something in relationship patterns only.
oC_LeftArrowHead : '<' | '\u27E8' | '\u3008' | '\uFE64' | '\uFF1C' ;

oC_RightArrowHead : '>' | '\u27E9' | '\u3009' | '\uFE65' | '\uFF1E' ;

oC_Dash
    : '-' | '\u00AD' | '\u2010' | '\u2011' | '\u2012' | '\u2013' | '\u2014' | '\u2015'
    | '\u2212' | '\uFE58' | '\uFE63' | '\uFF0D'
    ;

// Tokens

// Keywords match in any case. They stand before UnescapedSymbolicName and so win over it.
UNION : ( 'U' | 'u' ) ( 'N' | 'n' ) ( 'I' | 'i' ) ( 'O' | 'o' ) ( 'N' | 'n' ) ;

ALL : ( 'A' | 'a' ) ( 'L' | 'l' ) ( 'L' | 'l' ) ;

OPTIONAL : ( 'O' | 'o' ) ( 'P' | 'p' ) ( 'T' | 't' ) ( 'I' | 'i' ) ( 'O' | 'o' ) ( 'N' | 'n' ) ( 'A' | 'a' ) ( 'L' | 'l' ) ;

MATCH : ( 'M' | 'm' ) ( 'A' | 'a' ) ( 'T' | 't' ) ( 'C' | 'c' ) ( 'H' | 'h' ) ;

UNWIND : ( 'U' | 'u' ) ( 'N' | 'n' ) ( 'W' | 'w' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ;

AS : ( 'A' | 'a' ) ( 'S' | 's' ) ;

MERGE : ( 'M' | 'm' ) ( 'E' | 'e' ) ( 'R' | 'r' ) ( 'G' | 'g' ) ( 'E' | 'e' ) ;

ON : ( 'O' | 'o' ) ( 'N' | 'n' ) ;

CREATE : ( 'C' | 'c' ) ( 'R' | 'r' ) ( 'E' | 'e' ) ( 'A' | 'a' ) ( 'T' | 't' ) ( 'E' | 'e' ) ;

SET : ( 'S' | 's' ) ( 'E' | 'e' ) ( 'T' | 't' ) ;

DETACH : ( 'D' | 'd' ) ( 'E' | 'e' ) ( 'T' | 't' ) ( 'A' | 'a' ) ( 'C' | 'c' ) ( 'H' | 'h' ) ;

DELETE : ( 'D' | 'd' ) ( 'E' | 'e' ) ( 'L' | 'l' ) ( 'E' | 'e' ) ( 'T' | 't' ) ( 'E' | 'e' ) ;

REMOVE : ( 'R' | 'r' ) ( 'E' | 'e' ) ( 'M' | 'm' ) ( 'O' | 'o' ) ( 'V' | 'v' ) ( 'E' | 'e' ) ;

CALL : ( 'C' | 'c' ) ( 'A' | 'a' ) ( 'L' | 'l' ) ( 'L' | 'l' ) ;

YIELD : ( 'Y' | 'y' ) ( 'I' | 'i' ) ( 'E' | 'e' ) ( 'L' | 'l' ) ( 'D' | 'd' ) ;

WITH : ( 'W' | 'w' ) ( 'I' | 'i' ) ( 'T' | 't' ) ( 'H' | 'h' ) ;

RETURN : ( 'R' | 'r' ) ( 'E' | 'e' ) ( 'T' | 't' ) ( 'U' | 'u' ) ( 'R' | 'r' ) ( 'N' | 'n' ) ;

DISTINCT : ( 'D' | 'd' ) ( 'I' | 'i' ) ( 'S' | 's' ) ( 'T' | 't' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'C' | 'c' ) ( 'T' | 't' ) ;

ORDER : ( 'O' | 'o' ) ( 'R' | 'r' ) ( 'D' | 'd' ) ( 'E' | 'e' ) ( 'R' | 'r' ) ;

BY : ( 'B' | 'b' ) ( 'Y' | 'y' ) ;

L_SKIP : ( 'S' | 's' ) ( 'K' | 'k' ) ( 'I' | 'i' ) ( 'P' | 'p' ) ;

LIMIT : ( 'L' | 'l' ) ( 'I' | 'i' ) ( 'M' | 'm' ) ( 'I' | 'i' ) ( 'T' | 't' ) ;

ASCENDING : ( 'A' | 'a' ) ( 'S' | 's' ) ( 'C' | 'c' ) ( 'E' | 'e' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'G' | 'g' ) ;

ASC : ( 'A' | 'a' ) ( 'S' | 's' ) ( 'C' | 'c' ) ;

DESCENDING : ( 'D' | 'd' ) ( 'E' | 'e' ) ( 'S' | 's' ) ( 'C' | 'c' ) ( 'E' | 'e' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'G' | 'g' ) ;

DESC : ( 'D' | 'd' ) ( 'E' | 'e' ) ( 'S' | 's' ) ( 'C' | 'c' ) ;

WHERE : ( 'W' | 'w' ) ( 'H' | 'h' ) ( 'E' | 'e' ) ( 'R' | 'r' ) ( 'E' | 'e' ) ;

SHORTESTPATH : ( 'S' | 's' ) ( 'H' | 'h' ) ( 'O' | 'o' ) ( 'R' | 'r' ) ( 'T' | 't' ) ( 'E' | 'e' ) ( 'S' | 's' ) ( 'T' | 't' ) ( 'P' | 'p' ) ( 'A' | 'a' ) ( 'T' | 't' ) ( 'H' | 'h' ) ;

ALLSHORTESTPATHS : ( 'A' | 'a' ) ( 'L' | 'l' ) ( 'L' | 'l' ) ( 'S' | 's' ) ( 'H' | 'h' ) ( 'O' | 'o' ) ( 'R' | 'r' ) ( 'T' | 't' ) ( 'E' | 'e' ) ( 'S' | 's' ) ( 'T' | 't' ) ( 'P' | 'p' ) ( 'A' | 'a' ) ( 'T' | 't' ) ( 'H' | 'h' ) ( 'S' | 's' ) ;

OR : ( 'O' | 'o' ) ( 'R' | 'r' ) ;

XOR : ( 'X' | 'x' ) ( 'O' | 'o' ) ( 'R' | 'r' ) ;

AND : ( 'A' | 'a' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ;

NOT : ( 'N' | 'n' ) ( 'O' | 'o' ) ( 'T' | 't' ) ;

STARTS : ( 'S' | 's' ) ( 'T' | 't' ) ( 'A' | 'a' ) ( 'R' | 'r' ) ( 'T' | 't' ) ( 'S' | 's' ) ;

ENDS : ( 'E' | 'e' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ( 'S' | 's' ) ;

CONTAINS : ( 'C' | 'c' ) ( 'O' | 'o' ) ( 'N' | 'n' ) ( 'T' | 't' ) ( 'A' | 'a' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'S' | 's' ) ;

IN : ( 'I' | 'i' ) ( 'N' | 'n' ) ;

IS : ( 'I' | 'i' ) ( 'S' | 's' ) ;

NULL : ( 'N' | 'n' ) ( 'U' | 'u' ) ( 'L' | 'l' ) ( 'L' | 'l' ) ;

COUNT : ( 'C' | 'c' ) ( 'O' | 'o' ) ( 'U' | 'u' ) ( 'N' | 'n' ) ( 'T' | 't' ) ;

CASE : ( 'C' | 'c' ) ( 'A' | 'a' ) ( 'S' | 's' ) ( 'E' | 'e' ) ;

ELSE : ( 'E' | 'e' ) ( 'L' | 'l' ) ( 'S' | 's' ) ( 'E' | 'e' ) ;

END : ( 'E' | 'e' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ;

WHEN : ( 'W' | 'w' ) ( 'H' | 'h' ) ( 'E' | 'e' ) ( 'N' | 'n' ) ;

THEN : ( 'T' | 't' ) ( 'H' | 'h' ) ( 'E' | 'e' ) ( 'N' | 'n' ) ;

ANY : ( 'A' | 'a' ) ( 'N' | 'n' ) ( 'Y' | 'y' ) ;

NONE : ( 'N' | 'n' ) ( 'O' | 'o' ) ( 'N' | 'n' ) ( 'E' | 'e' ) ;

SINGLE : ( 'S' | 's' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'G' | 'g' ) ( 'L' | 'l' ) ( 'E' | 'e' ) ;

EXISTS : ( 'E' | 'e' ) ( 'X' | 'x' ) ( 'I' | 'i' ) ( 'S' | 's' ) ( 'T' | 't' ) ( 'S' | 's' ) ;

TRUE : ( 'T' | 't' ) ( 'R' | 'r' ) ( 'U' | 'u' ) ( 'E' | 'e' ) ;

FALSE : ( 'F' | 'f' ) ( 'A' | 'a' ) ( 'L' | 'l' ) ( 'S' | 's' ) ( 'E' | 'e' ) ;

// The x and the o of a number are lower case only.
HexInteger : '0x' HexDigit+ ;

DecimalInteger : ZeroDigit | NonZeroDigit Digit* ;

OctalInteger : '0o' OctDigit+ ;

// A lone letter from A to F is this token, not UnescapedSymbolicName.
HexLetter : ('A'..'F') | ('a'..'f') ;

HexDigit : Digit | HexLetter ;

Digit : ZeroDigit | NonZeroDigit ;

NonZeroDigit : NonZeroOctDigit | '8'..'9' ;

NonZeroOctDigit : '1'..'7' ;

OctDigit : ZeroDigit | NonZeroOctDigit ;

ZeroDigit : '0' ;

// An exponent takes a minus sign, never a plus sign.
ExponentDecimalReal : ( Digit+ | Digit+ '.' Digit+ | '.' Digit+ ) ( 'E' | 'e' ) '-'? Digit+ ;

RegularDecimalReal : Digit* '.' Digit+ ;

StringLiteral
    : '"' ( StringLiteral_0 | EscapedChar )* '"'
    | '\'' ( StringLiteral_1 | EscapedChar )* '\''
    ;

EscapedChar
    : '\\'
      ( '\\' | '\'' | '"' | 'B' | 'b' | 'F' | 'f' | 'N' | 'n' | 'R' | 'r' | 'T' | 't'
      | ( 'U' | 'u' ) HexDigit HexDigit HexDigit HexDigit
      | ( 'U' | 'u' ) HexDigit HexDigit HexDigit HexDigit HexDigit HexDigit HexDigit HexDigit
      )
    ;

CONSTRAINT : ( 'C' | 'c' ) ( 'O' | 'o' ) ( 'N' | 'n' ) ( 'S' | 's' ) ( 'T' | 't' ) ( 'R' | 'r' ) ( 'A' | 'a' ) ( 'I' | 'i' ) ( 'N' | 'n' ) ( 'T' | 't' ) ;

DO : ( 'D' | 'd' ) ( 'O' | 'o' ) ;

FOR : ( 'F' | 'f' ) ( 'O' | 'o' ) ( 'R' | 'r' ) ;

REQUIRE : ( 'R' | 'r' ) ( 'E' | 'e' ) ( 'Q' | 'q' ) ( 'U' | 'u' ) ( 'I' | 'i' ) ( 'R' | 'r' ) ( 'E' | 'e' ) ;

UNIQUE : ( 'U' | 'u' ) ( 'N' | 'n' ) ( 'I' | 'i' ) ( 'Q' | 'q' ) ( 'U' | 'u' ) ( 'E' | 'e' ) ;

MANDATORY : ( 'M' | 'm' ) ( 'A' | 'a' ) ( 'N' | 'n' ) ( 'D' | 'd' ) ( 'A' | 'a' ) ( 'T' | 't' ) ( 'O' | 'o' ) ( 'R' | 'r' ) ( 'Y' | 'y' ) ;

SCALAR : ( 'S' | 's' ) ( 'C' | 'c' ) ( 'A' | 'a' ) ( 'L' | 'l' ) ( 'A' | 'a' ) ( 'R' | 'r' ) ;

OF : ( 'O' | 'o' ) ( 'F' | 'f' ) ;

ADD : ( 'A' | 'a' ) ( 'D' | 'd' ) ( 'D' | 'd' ) ;

DROP : ( 'D' | 'd' ) ( 'R' | 'r' ) ( 'O' | 'o' ) ( 'P' | 'p' ) ;

FILTER : ( 'F' | 'f' ) ( 'I' | 'i' ) ( 'L' | 'l' ) ( 'T' | 't' ) ( 'E' | 'e' ) ( 'R' | 'r' ) ;

EXTRACT : ( 'E' | 'e' ) ( 'X' | 'x' ) ( 'T' | 't' ) ( 'R' | 'r' ) ( 'A' | 'a' ) ( 'C' | 'c' ) ( 'T' | 't' ) ;

UnescapedSymbolicName : IdentifierStart IdentifierPart* ;

IdentifierStart : ID_Start | Pc ;

IdentifierPart : ID_Continue | Sc ;

// A doubled back quote inside a name joins two segments; the text keeps all back quotes.
EscapedSymbolicName : ( '`' EscapedSymbolicName_0* '`' )+ ;

// Stands before WHITESPACE and Comment and covers both, so those two are never emitted.
SP : WHITESPACE+ ;

WHITESPACE
    : SPACE | TAB | LF | VT | FF | CR | FS | GS | RS | US
    | '\u00A0' | '\u1680' | '\u180E' | '\u2000'..'\u200A' | '\u2028' | '\u2029' | '\u202F'
    | '\u205F' | '\u3000'
    | Comment
    ;

// A star and the character after it are taken together: /***/ is not closed, /****/ is.
Comment
    : '/*' ( Comment_1 | '*' Comment_2 )* '*/'
    | '//' Comment_3* CR? ( LF | EOF )
    ;

// Fragments

fragment FF : [\u000C] ;

fragment EscapedSymbolicName_0 : ~'`' ;

fragment RS : [\u001E] ;

// begin ID_Continue: written by unicode_sets.py
fragment ID_Continue
    : '\u0030'..'\u0039' | '\u0041'..'\u005A' | '\u005F' | '\u0061'..'\u007A' | '\u00AA' | '\u00B5'
    | '\u00B7' | '\u00BA' | '\u00C0'..'\u00D6' | '\u00D8'..'\u00F6' | '\u00F8'..'\u02C1'
    | '\u02C6'..'\u02D1' | '\u02E0'..'\u02E4' | '\u02EC' | '\u02EE' | '\u0300'..'\u0374'
    | '\u0376'..'\u0377' | '\u037A'..'\u037D' | '\u037F' | '\u0386'..'\u038A' | '\u038C'
    | '\u038E'..'\u03A1' | '\u03A3'..'\u03F5' | '\u03F7'..'\u0481' | '\u0483'..'\u0487'
    | '\u048A'..'\u052F' | '\u0531'..'\u0556' | '\u0559' | '\u0560'..'\u0588' | '\u0591'..'\u05BD'
    | '\u05BF' | '\u05C1'..'\u05C2' | '\u05C4'..'\u05C5' | '\u05C7' | '\u05D0'..'\u05EA'
    | '\u05EF'..'\u05F2' | '\u0610'..'\u061A' | '\u0620'..'\u0669' | '\u066E'..'\u06D3'
    | '\u06D5'..'\u06DC' | '\u06DF'..'\u06E8' | '\u06EA'..'\u06FC' | '\u06FF' | '\u0710'..'\u074A'
    | '\u074D'..'\u07B1' | '\u07C0'..'\u07F5' | '\u07FA' | '\u07FD' | '\u0800'..'\u082D'
    | '\u0840'..'\u085B' | '\u0860'..'\u086A' | '\u0870'..'\u0887' | '\u0889'..'\u088E'
    | '\u0898'..'\u08E1' | '\u08E3'..'\u0963' | '\u0966'..'\u096F' | '\u0971'..'\u0983'
    | '\u0985'..'\u098C' | '\u098F'..'\u0990' | '\u0993'..'\u09A8' | '\u09AA'..'\u09B0' | '\u09B2'
    | '\u09B6'..'\u09B9' | '\u09BC'..'\u09C4' | '\u09C7'..'\u09C8' | '\u09CB'..'\u09CE' | '\u09D7'
    | '\u09DC'..'\u09DD' | '\u09DF'..'\u09E3' | '\u09E6'..'\u09F1' | '\u09FC' | '\u09FE'
    | '\u0A01'..'\u0A03' | '\u0A05'..'\u0A0A' | '\u0A0F'..'\u0A10' | '\u0A13'..'\u0A28'
    | '\u0A2A'..'\u0A30' | '\u0A32'..'\u0A33' | '\u0A35'..'\u0A36' | '\u0A38'..'\u0A39' | '\u0A3C'
    | '\u0A3E'..'\u0A42' | '\u0A47'..'\u0A48' | '\u0A4B'..'\u0A4D' | '\u0A51' | '\u0A59'..'\u0A5C'
    | '\u0A5E' | '\u0A66'..'\u0A75' | '\u0A81'..'\u0A83' | '\u0A85'..'\u0A8D' | '\u0A8F'..'\u0A91'
    | '\u0A93'..'\u0AA8' | '\u0AAA'..'\u0AB0' | '\u0AB2'..'\u0AB3' | '\u0AB5'..'\u0AB9'
    | '\u0ABC'..'\u0AC5' | '\u0AC7'..'\u0AC9' | '\u0ACB'..'\u0ACD' | '\u0AD0' | '\u0AE0'..'\u0AE3'
    | '\u0AE6'..'\u0AEF' | '\u0AF9'..'\u0AFF' | '\u0B01'..'\u0B03' | '\u0B05'..'\u0B0C'
    | '\u0B0F'..'\u0B10' | '\u0B13'..'\u0B28' | '\u0B2A'..'\u0B30' | '\u0B32'..'\u0B33'
    | '\u0B35'..'\u0B39' | '\u0B3C'..'\u0B44' | '\u0B47'..'\u0B48' | '\u0B4B'..'\u0B4D'
    | '\u0B55'..'\u0B57' | '\u0B5C'..'\u0B5D' | '\u0B5F'..'\u0B63' | '\u0B66'..'\u0B6F' | '\u0B71'
    | '\u0B82'..'\u0B83' | '\u0B85'..'\u0B8A' | '\u0B8E'..'\u0B90' | '\u0B92'..'\u0B95'
    | '\u0B99'..'\u0B9A' | '\u0B9C' | '\u0B9E'..'\u0B9F' | '\u0BA3'..'\u0BA4' | '\u0BA8'..'\u0BAA'
    | '\u0BAE'..'\u0BB9' | '\u0BBE'..'\u0BC2' | '\u0BC6'..'\u0BC8' | '\u0BCA'..'\u0BCD' | '\u0BD0'
    | '\u0BD7' | '\u0BE6'..'\u0BEF' | '\u0C00'..'\u0C0C' | '\u0C0E'..'\u0C10' | '\u0C12'..'\u0C28'
    | '\u0C2A'..'\u0C39' | '\u0C3C'..'\u0C44' | '\u0C46'..'\u0C48' | '\u0C4A'..'\u0C4D'
    | '\u0C55'..'\u0C56' | '\u0C58'..'\u0C5A' | '\u0C5D' | '\u0C60'..'\u0C63' | '\u0C66'..'\u0C6F'
    | '\u0C80'..'\u0C83' | '\u0C85'..'\u0C8C' | '\u0C8E'..'\u0C90' | '\u0C92'..'\u0CA8'
    | '\u0CAA'..'\u0CB3' | '\u0CB5'..'\u0CB9' | '\u0CBC'..'\u0CC4' | '\u0CC6'..'\u0CC8'
    | '\u0CCA'..'\u0CCD' | '\u0CD5'..'\u0CD6' | '\u0CDD'..'\u0CDE' | '\u0CE0'..'\u0CE3'
    | '\u0CE6'..'\u0CEF' | '\u0CF1'..'\u0CF3' | '\u0D00'..'\u0D0C' | '\u0D0E'..'\u0D10'
    | '\u0D12'..'\u0D44' | '\u0D46'..'\u0D48' | '\u0D4A'..'\u0D4E' | '\u0D54'..'\u0D57'
    | '\u0D5F'..'\u0D63' | '\u0D66'..'\u0D6F' | '\u0D7A'..'\u0D7F' | '\u0D81'..'\u0D83'
    | '\u0D85'..'\u0D96' | '\u0D9A'..'\u0DB1' | '\u0DB3'..'\u0DBB' | '\u0DBD' | '\u0DC0'..'\u0DC6'
    | '\u0DCA' | '\u0DCF'..'\u0DD4' | '\u0DD6' | '\u0DD8'..'\u0DDF' | '\u0DE6'..'\u0DEF'
    | '\u0DF2'..'\u0DF3' | '\u0E01'..'\u0E3A' | '\u0E40'..'\u0E4E' | '\u0E50'..'\u0E59'
    | '\u0E81'..'\u0E82' | '\u0E84' | '\u0E86'..'\u0E8A' | '\u0E8C'..'\u0EA3' | '\u0EA5'
    | '\u0EA7'..'\u0EBD' | '\u0EC0'..'\u0EC4' | '\u0EC6' | '\u0EC8'..'\u0ECE' | '\u0ED0'..'\u0ED9'
    | '\u0EDC'..'\u0EDF' | '\u0F00' | '\u0F18'..'\u0F19' | '\u0F20'..'\u0F29' | '\u0F35' | '\u0F37'
    | '\u0F39' | '\u0F3E'..'\u0F47' | '\u0F49'..'\u0F6C' | '\u0F71'..'\u0F84' | '\u0F86'..'\u0F97'
    | '\u0F99'..'\u0FBC' | '\u0FC6' | '\u1000'..'\u1049' | '\u1050'..'\u109D' | '\u10A0'..'\u10C5'
    | '\u10C7' | '\u10CD' | '\u10D0'..'\u10FA' | '\u10FC'..'\u1248' | '\u124A'..'\u124D'
    | '\u1250'..'\u1256' | '\u1258' | '\u125A'..'\u125D' | '\u1260'..'\u1288' | '\u128A'..'\u128D'
    | '\u1290'..'\u12B0' | '\u12B2'..'\u12B5' | '\u12B8'..'\u12BE' | '\u12C0' | '\u12C2'..'\u12C5'
    | '\u12C8'..'\u12D6' | '\u12D8'..'\u1310' | '\u1312'..'\u1315' | '\u1318'..'\u135A'
    | '\u135D'..'\u135F' | '\u1369'..'\u1371' | '\u1380'..'\u138F' | '\u13A0'..'\u13F5'
    | '\u13F8'..'\u13FD' | '\u1401'..'\u166C' | '\u166F'..'\u167F' | '\u1681'..'\u169A'
    | '\u16A0'..'\u16EA' | '\u16EE'..'\u16F8' | '\u1700'..'\u1715' | '\u171F'..'\u1734'
    | '\u1740'..'\u1753' | '\u1760'..'\u176C' | '\u176E'..'\u1770' | '\u1772'..'\u1773'
    | '\u1780'..'\u17D3' | '\u17D7' | '\u17DC'..'\u17DD' | '\u17E0'..'\u17E9' | '\u180B'..'\u180D'
    | '\u180F'..'\u1819' | '\u1820'..'\u1878' | '\u1880'..'\u18AA' | '\u18B0'..'\u18F5'
    | '\u1900'..'\u191E' | '\u1920'..'\u192B' | '\u1930'..'\u193B' | '\u1946'..'\u196D'
    | '\u1970'..'\u1974' | '\u1980'..'\u19AB' | '\u19B0'..'\u19C9' | '\u19D0'..'\u19DA'
    | '\u1A00'..'\u1A1B' | '\u1A20'..'\u1A5E' | '\u1A60'..'\u1A7C' | '\u1A7F'..'\u1A89'
    | '\u1A90'..'\u1A99' | '\u1AA7' | '\u1AB0'..'\u1ABD' | '\u1ABF'..'\u1ACE' | '\u1B00'..'\u1B4C'
    | '\u1B50'..'\u1B59' | '\u1B6B'..'\u1B73' | '\u1B80'..'\u1BF3' | '\u1C00'..'\u1C37'
    | '\u1C40'..'\u1C49' | '\u1C4D'..'\u1C7D' | '\u1C80'..'\u1C88' | '\u1C90'..'\u1CBA'
    | '\u1CBD'..'\u1CBF' | '\u1CD0'..'\u1CD2' | '\u1CD4'..'\u1CFA' | '\u1D00'..'\u1F15'
    | '\u1F18'..'\u1F1D' | '\u1F20'..'\u1F45' | '\u1F48'..'\u1F4D' | '\u1F50'..'\u1F57' | '\u1F59'
    | '\u1F5B' | '\u1F5D' | '\u1F5F'..'\u1F7D' | '\u1F80'..'\u1FB4' | '\u1FB6'..'\u1FBC' | '\u1FBE'
    | '\u1FC2'..'\u1FC4' | '\u1FC6'..'\u1FCC' | '\u1FD0'..'\u1FD3' | '\u1FD6'..'\u1FDB'
    | '\u1FE0'..'\u1FEC' | '\u1FF2'..'\u1FF4' | '\u1FF6'..'\u1FFC' | '\u203F'..'\u2040' | '\u2054'
    | '\u2071' | '\u207F' | '\u2090'..'\u209C' | '\u20D0'..'\u20DC' | '\u20E1' | '\u20E5'..'\u20F0'
    | '\u2102' | '\u2107' | '\u210A'..'\u2113' | '\u2115' | '\u2118'..'\u211D' | '\u2124' | '\u2126'
    | '\u2128' | '\u212A'..'\u2139' | '\u213C'..'\u213F' | '\u2145'..'\u2149' | '\u214E'
    | '\u2160'..'\u2188' | '\u2C00'..'\u2CE4' | '\u2CEB'..'\u2CF3' | '\u2D00'..'\u2D25' | '\u2D27'
    | '\u2D2D' | '\u2D30'..'\u2D67' | '\u2D6F' | '\u2D7F'..'\u2D96' | '\u2DA0'..'\u2DA6'
    | '\u2DA8'..'\u2DAE' | '\u2DB0'..'\u2DB6' | '\u2DB8'..'\u2DBE' | '\u2DC0'..'\u2DC6'
    | '\u2DC8'..'\u2DCE' | '\u2DD0'..'\u2DD6' | '\u2DD8'..'\u2DDE' | '\u2DE0'..'\u2DFF'
    | '\u3005'..'\u3007' | '\u3021'..'\u302F' | '\u3031'..'\u3035' | '\u3038'..'\u303C'
    | '\u3041'..'\u3096' | '\u3099'..'\u309F' | '\u30A1'..'\u30FA' | '\u30FC'..'\u30FF'
    | '\u3105'..'\u312F' | '\u3131'..'\u318E' | '\u31A0'..'\u31BF' | '\u31F0'..'\u31FF'
    | '\u3400'..'\u4DBF' | '\u4E00'..'\uA48C' | '\uA4D0'..'\uA4FD' | '\uA500'..'\uA60C'
    | '\uA610'..'\uA62B' | '\uA640'..'\uA66F' | '\uA674'..'\uA67D' | '\uA67F'..'\uA6F1'
    | '\uA717'..'\uA71F' | '\uA722'..'\uA788' | '\uA78B'..'\uA7CA' | '\uA7D0'..'\uA7D1' | '\uA7D3'
    | '\uA7D5'..'\uA7D9' | '\uA7F2'..'\uA827' | '\uA82C' | '\uA840'..'\uA873' | '\uA880'..'\uA8C5'
    | '\uA8D0'..'\uA8D9' | '\uA8E0'..'\uA8F7' | '\uA8FB' | '\uA8FD'..'\uA92D' | '\uA930'..'\uA953'
    | '\uA960'..'\uA97C' | '\uA980'..'\uA9C0' | '\uA9CF'..'\uA9D9' | '\uA9E0'..'\uA9FE'
    | '\uAA00'..'\uAA36' | '\uAA40'..'\uAA4D' | '\uAA50'..'\uAA59' | '\uAA60'..'\uAA76'
    | '\uAA7A'..'\uAAC2' | '\uAADB'..'\uAADD' | '\uAAE0'..'\uAAEF' | '\uAAF2'..'\uAAF6'
    | '\uAB01'..'\uAB06' | '\uAB09'..'\uAB0E' | '\uAB11'..'\uAB16' | '\uAB20'..'\uAB26'
    | '\uAB28'..'\uAB2E' | '\uAB30'..'\uAB5A' | '\uAB5C'..'\uAB69' | '\uAB70'..'\uABEA'
    | '\uABEC'..'\uABED' | '\uABF0'..'\uABF9' | '\uAC00'..'\uD7A3' | '\uD7B0'..'\uD7C6'
    | '\uD7CB'..'\uD7FB' | '\uF900'..'\uFA6D' | '\uFA70'..'\uFAD9' | '\uFB00'..'\uFB06'
    | '\uFB13'..'\uFB17' | '\uFB1D'..'\uFB28' | '\uFB2A'..'\uFB36' | '\uFB38'..'\uFB3C' | '\uFB3E'
    | '\uFB40'..'\uFB41' | '\uFB43'..'\uFB44' | '\uFB46'..'\uFBB1' | '\uFBD3'..'\uFD3D'
    | '\uFD50'..'\uFD8F' | '\uFD92'..'\uFDC7' | '\uFDF0'..'\uFDFB' | '\uFE00'..'\uFE0F'
    | '\uFE20'..'\uFE2F' | '\uFE33'..'\uFE34' | '\uFE4D'..'\uFE4F' | '\uFE70'..'\uFE74'
    | '\uFE76'..'\uFEFC' | '\uFF10'..'\uFF19' | '\uFF21'..'\uFF3A' | '\uFF3F' | '\uFF41'..'\uFF5A'
    | '\uFF66'..'\uFFBE' | '\uFFC2'..'\uFFC7' | '\uFFCA'..'\uFFCF' | '\uFFD2'..'\uFFD7'
    | '\uFFDA'..'\uFFDC' | '\u{10000}'..'\u{1000B}' | '\u{1000D}'..'\u{10026}'
    | '\u{10028}'..'\u{1003A}' | '\u{1003C}'..'\u{1003D}' | '\u{1003F}'..'\u{1004D}'
    | '\u{10050}'..'\u{1005D}' | '\u{10080}'..'\u{100FA}' | '\u{10140}'..'\u{10174}' | '\u{101FD}'
    | '\u{10280}'..'\u{1029C}' | '\u{102A0}'..'\u{102D0}' | '\u{102E0}' | '\u{10300}'..'\u{1031F}'
    | '\u{1032D}'..'\u{1034A}' | '\u{10350}'..'\u{1037A}' | '\u{10380}'..'\u{1039D}'
    | '\u{103A0}'..'\u{103C3}' | '\u{103C8}'..'\u{103CF}' | '\u{103D1}'..'\u{103D5}'
    | '\u{10400}'..'\u{1049D}' | '\u{104A0}'..'\u{104A9}' | '\u{104B0}'..'\u{104D3}'
    | '\u{104D8}'..'\u{104FB}' | '\u{10500}'..'\u{10527}' | '\u{10530}'..'\u{10563}'
    | '\u{10570}'..'\u{1057A}' | '\u{1057C}'..'\u{1058A}' | '\u{1058C}'..'\u{10592}'
    | '\u{10594}'..'\u{10595}' | '\u{10597}'..'\u{105A1}' | '\u{105A3}'..'\u{105B1}'
    | '\u{105B3}'..'\u{105B9}' | '\u{105BB}'..'\u{105BC}' | '\u{10600}'..'\u{10736}'
    | '\u{10740}'..'\u{10755}' | '\u{10760}'..'\u{10767}' | '\u{10780}'..'\u{10785}'
    | '\u{10787}'..'\u{107B0}' | '\u{107B2}'..'\u{107BA}' | '\u{10800}'..'\u{10805}' | '\u{10808}'
    | '\u{1080A}'..'\u{10835}' | '\u{10837}'..'\u{10838}' | '\u{1083C}' | '\u{1083F}'..'\u{10855}'
    | '\u{10860}'..'\u{10876}' | '\u{10880}'..'\u{1089E}' | '\u{108E0}'..'\u{108F2}'
    | '\u{108F4}'..'\u{108F5}' | '\u{10900}'..'\u{10915}' | '\u{10920}'..'\u{10939}'
    | '\u{10980}'..'\u{109B7}' | '\u{109BE}'..'\u{109BF}' | '\u{10A00}'..'\u{10A03}'
    | '\u{10A05}'..'\u{10A06}' | '\u{10A0C}'..'\u{10A13}' | '\u{10A15}'..'\u{10A17}'
    | '\u{10A19}'..'\u{10A35}' | '\u{10A38}'..'\u{10A3A}' | '\u{10A3F}' | '\u{10A60}'..'\u{10A7C}'
    | '\u{10A80}'..'\u{10A9C}' | '\u{10AC0}'..'\u{10AC7}' | '\u{10AC9}'..'\u{10AE6}'
    | '\u{10B00}'..'\u{10B35}' | '\u{10B40}'..'\u{10B55}' | '\u{10B60}'..'\u{10B72}'
    | '\u{10B80}'..'\u{10B91}' | '\u{10C00}'..'\u{10C48}' | '\u{10C80}'..'\u{10CB2}'
    | '\u{10CC0}'..'\u{10CF2}' | '\u{10D00}'..'\u{10D27}' | '\u{10D30}'..'\u{10D39}'
    | '\u{10E80}'..'\u{10EA9}' | '\u{10EAB}'..'\u{10EAC}' | '\u{10EB0}'..'\u{10EB1}'
    | '\u{10EFD}'..'\u{10F1C}' | '\u{10F27}' | '\u{10F30}'..'\u{10F50}' | '\u{10F70}'..'\u{10F85}'
    | '\u{10FB0}'..'\u{10FC4}' | '\u{10FE0}'..'\u{10FF6}' | '\u{11000}'..'\u{11046}'
    | '\u{11066}'..'\u{11075}' | '\u{1107F}'..'\u{110BA}' | '\u{110C2}' | '\u{110D0}'..'\u{110E8}'
    | '\u{110F0}'..'\u{110F9}' | '\u{11100}'..'\u{11134}' | '\u{11136}'..'\u{1113F}'
    | '\u{11144}'..'\u{11147}' | '\u{11150}'..'\u{11173}' | '\u{11176}' | '\u{11180}'..'\u{111C4}'
    | '\u{111C9}'..'\u{111CC}' | '\u{111CE}'..'\u{111DA}' | '\u{111DC}' | '\u{11200}'..'\u{11211}'
    | '\u{11213}'..'\u{11237}' | '\u{1123E}'..'\u{11241}' | '\u{11280}'..'\u{11286}' | '\u{11288}'
    | '\u{1128A}'..'\u{1128D}' | '\u{1128F}'..'\u{1129D}' | '\u{1129F}'..'\u{112A8}'
    | '\u{112B0}'..'\u{112EA}' | '\u{112F0}'..'\u{112F9}' | '\u{11300}'..'\u{11303}'
    | '\u{11305}'..'\u{1130C}' | '\u{1130F}'..'\u{11310}' | '\u{11313}'..'\u{11328}'
    | '\u{1132A}'..'\u{11330}' | '\u{11332}'..'\u{11333}' | '\u{11335}'..'\u{11339}'
    | '\u{1133B}'..'\u{11344}' | '\u{11347}'..'\u{11348}' | '\u{1134B}'..'\u{1134D}' | '\u{11350}'
    | '\u{11357}' | '\u{1135D}'..'\u{11363}' | '\u{11366}'..'\u{1136C}' | '\u{11370}'..'\u{11374}'
    | '\u{11400}'..'\u{1144A}' | '\u{11450}'..'\u{11459}' | '\u{1145E}'..'\u{11461}'
    | '\u{11480}'..'\u{114C5}' | '\u{114C7}' | '\u{114D0}'..'\u{114D9}' | '\u{11580}'..'\u{115B5}'
    | '\u{115B8}'..'\u{115C0}' | '\u{115D8}'..'\u{115DD}' | '\u{11600}'..'\u{11640}' | '\u{11644}'
    | '\u{11650}'..'\u{11659}' | '\u{11680}'..'\u{116B8}' | '\u{116C0}'..'\u{116C9}'
    | '\u{11700}'..'\u{1171A}' | '\u{1171D}'..'\u{1172B}' | '\u{11730}'..'\u{11739}'
    | '\u{11740}'..'\u{11746}' | '\u{11800}'..'\u{1183A}' | '\u{118A0}'..'\u{118E9}'
    | '\u{118FF}'..'\u{11906}' | '\u{11909}' | '\u{1190C}'..'\u{11913}' | '\u{11915}'..'\u{11916}'
    | '\u{11918}'..'\u{11935}' | '\u{11937}'..'\u{11938}' | '\u{1193B}'..'\u{11943}'
    | '\u{11950}'..'\u{11959}' | '\u{119A0}'..'\u{119A7}' | '\u{119AA}'..'\u{119D7}'
    | '\u{119DA}'..'\u{119E1}' | '\u{119E3}'..'\u{119E4}' | '\u{11A00}'..'\u{11A3E}' | '\u{11A47}'
    | '\u{11A50}'..'\u{11A99}' | '\u{11A9D}' | '\u{11AB0}'..'\u{11AF8}' | '\u{11C00}'..'\u{11C08}'
    | '\u{11C0A}'..'\u{11C36}' | '\u{11C38}'..'\u{11C40}' | '\u{11C50}'..'\u{11C59}'
    | '\u{11C72}'..'\u{11C8F}' | '\u{11C92}'..'\u{11CA7}' | '\u{11CA9}'..'\u{11CB6}'
    | '\u{11D00}'..'\u{11D06}' | '\u{11D08}'..'\u{11D09}' | '\u{11D0B}'..'\u{11D36}' | '\u{11D3A}'
    | '\u{11D3C}'..'\u{11D3D}' | '\u{11D3F}'..'\u{11D47}' | '\u{11D50}'..'\u{11D59}'
    | '\u{11D60}'..'\u{11D65}' | '\u{11D67}'..'\u{11D68}' | '\u{11D6A}'..'\u{11D8E}'
    | '\u{11D90}'..'\u{11D91}' | '\u{11D93}'..'\u{11D98}' | '\u{11DA0}'..'\u{11DA9}'
    | '\u{11EE0}'..'\u{11EF6}' | '\u{11F00}'..'\u{11F10}' | '\u{11F12}'..'\u{11F3A}'
    | '\u{11F3E}'..'\u{11F42}' | '\u{11F50}'..'\u{11F59}' | '\u{11FB0}' | '\u{12000}'..'\u{12399}'
    | '\u{12400}'..'\u{1246E}' | '\u{12480}'..'\u{12543}' | '\u{12F90}'..'\u{12FF0}'
    | '\u{13000}'..'\u{1342F}' | '\u{13440}'..'\u{13455}' | '\u{14400}'..'\u{14646}'
    | '\u{16800}'..'\u{16A38}' | '\u{16A40}'..'\u{16A5E}' | '\u{16A60}'..'\u{16A69}'
    | '\u{16A70}'..'\u{16ABE}' | '\u{16AC0}'..'\u{16AC9}' | '\u{16AD0}'..'\u{16AED}'
    | '\u{16AF0}'..'\u{16AF4}' | '\u{16B00}'..'\u{16B36}' | '\u{16B40}'..'\u{16B43}'
    | '\u{16B50}'..'\u{16B59}' | '\u{16B63}'..'\u{16B77}' | '\u{16B7D}'..'\u{16B8F}'
    | '\u{16E40}'..'\u{16E7F}' | '\u{16F00}'..'\u{16F4A}' | '\u{16F4F}'..'\u{16F87}'
    | '\u{16F8F}'..'\u{16F9F}' | '\u{16FE0}'..'\u{16FE1}' | '\u{16FE3}'..'\u{16FE4}'
    | '\u{16FF0}'..'\u{16FF1}' | '\u{17000}'..'\u{187F7}' | '\u{18800}'..'\u{18CD5}'
    | '\u{18D00}'..'\u{18D08}' | '\u{1AFF0}'..'\u{1AFF3}' | '\u{1AFF5}'..'\u{1AFFB}'
    | '\u{1AFFD}'..'\u{1AFFE}' | '\u{1B000}'..'\u{1B122}' | '\u{1B132}' | '\u{1B150}'..'\u{1B152}'
    | '\u{1B155}' | '\u{1B164}'..'\u{1B167}' | '\u{1B170}'..'\u{1B2FB}' | '\u{1BC00}'..'\u{1BC6A}'
    | '\u{1BC70}'..'\u{1BC7C}' | '\u{1BC80}'..'\u{1BC88}' | '\u{1BC90}'..'\u{1BC99}'
    | '\u{1BC9D}'..'\u{1BC9E}' | '\u{1CF00}'..'\u{1CF2D}' | '\u{1CF30}'..'\u{1CF46}'
    | '\u{1D165}'..'\u{1D169}' | '\u{1D16D}'..'\u{1D172}' | '\u{1D17B}'..'\u{1D182}'
    | '\u{1D185}'..'\u{1D18B}' | '\u{1D1AA}'..'\u{1D1AD}' | '\u{1D242}'..'\u{1D244}'
    | '\u{1D400}'..'\u{1D454}' | '\u{1D456}'..'\u{1D49C}' | '\u{1D49E}'..'\u{1D49F}' | '\u{1D4A2}'
    | '\u{1D4A5}'..'\u{1D4A6}' | '\u{1D4A9}'..'\u{1D4AC}' | '\u{1D4AE}'..'\u{1D4B9}' | '\u{1D4BB}'
    | '\u{1D4BD}'..'\u{1D4C3}' | '\u{1D4C5}'..'\u{1D505}' | '\u{1D507}'..'\u{1D50A}'
    | '\u{1D50D}'..'\u{1D514}' | '\u{1D516}'..'\u{1D51C}' | '\u{1D51E}'..'\u{1D539}'
    | '\u{1D53B}'..'\u{1D53E}' | '\u{1D540}'..'\u{1D544}' | '\u{1D546}' | '\u{1D54A}'..'\u{1D550}'
    | '\u{1D552}'..'\u{1D6A5}' | '\u{1D6A8}'..'\u{1D6C0}' | '\u{1D6C2}'..'\u{1D6DA}'
    | '\u{1D6DC}'..'\u{1D6FA}' | '\u{1D6FC}'..'\u{1D714}' | '\u{1D716}'..'\u{1D734}'
    | '\u{1D736}'..'\u{1D74E}' | '\u{1D750}'..'\u{1D76E}' | '\u{1D770}'..'\u{1D788}'
    | '\u{1D78A}'..'\u{1D7A8}' | '\u{1D7AA}'..'\u{1D7C2}' | '\u{1D7C4}'..'\u{1D7CB}'
    | '\u{1D7CE}'..'\u{1D7FF}' | '\u{1DA00}'..'\u{1DA36}' | '\u{1DA3B}'..'\u{1DA6C}' | '\u{1DA75}'
    | '\u{1DA84}' | '\u{1DA9B}'..'\u{1DA9F}' | '\u{1DAA1}'..'\u{1DAAF}' | '\u{1DF00}'..'\u{1DF1E}'
    | '\u{1DF25}'..'\u{1DF2A}' | '\u{1E000}'..'\u{1E006}' | '\u{1E008}'..'\u{1E018}'
    | '\u{1E01B}'..'\u{1E021}' | '\u{1E023}'..'\u{1E024}' | '\u{1E026}'..'\u{1E02A}'
    | '\u{1E030}'..'\u{1E06D}' | '\u{1E08F}' | '\u{1E100}'..'\u{1E12C}' | '\u{1E130}'..'\u{1E13D}'
    | '\u{1E140}'..'\u{1E149}' | '\u{1E14E}' | '\u{1E290}'..'\u{1E2AE}' | '\u{1E2C0}'..'\u{1E2F9}'
    | '\u{1E4D0}'..'\u{1E4F9}' | '\u{1E7E0}'..'\u{1E7E6}' | '\u{1E7E8}'..'\u{1E7EB}'
    | '\u{1E7ED}'..'\u{1E7EE}' | '\u{1E7F0}'..'\u{1E7FE}' | '\u{1E800}'..'\u{1E8C4}'
    | '\u{1E8D0}'..'\u{1E8D6}' | '\u{1E900}'..'\u{1E94B}' | '\u{1E950}'..'\u{1E959}'
    | '\u{1EE00}'..'\u{1EE03}' | '\u{1EE05}'..'\u{1EE1F}' | '\u{1EE21}'..'\u{1EE22}' | '\u{1EE24}'
    | '\u{1EE27}' | '\u{1EE29}'..'\u{1EE32}' | '\u{1EE34}'..'\u{1EE37}' | '\u{1EE39}' | '\u{1EE3B}'
    | '\u{1EE42}' | '\u{1EE47}' | '\u{1EE49}' | '\u{1EE4B}' | '\u{1EE4D}'..'\u{1EE4F}'
    | '\u{1EE51}'..'\u{1EE52}' | '\u{1EE54}' | '\u{1EE57}' | '\u{1EE59}' | '\u{1EE5B}' | '\u{1EE5D}'
    | '\u{1EE5F}' | '\u{1EE61}'..'\u{1EE62}' | '\u{1EE64}' | '\u{1EE67}'..'\u{1EE6A}'
    | '\u{1EE6C}'..'\u{1EE72}' | '\u{1EE74}'..'\u{1EE77}' | '\u{1EE79}'..'\u{1EE7C}' | '\u{1EE7E}'
    | '\u{1EE80}'..'\u{1EE89}' | '\u{1EE8B}'..'\u{1EE9B}' | '\u{1EEA1}'..'\u{1EEA3}'
    | '\u{1EEA5}'..'\u{1EEA9}' | '\u{1EEAB}'..'\u{1EEBB}' | '\u{1FBF0}'..'\u{1FBF9}'
    | '\u{20000}'..'\u{2A6DF}' | '\u{2A700}'..'\u{2B739}' | '\u{2B740}'..'\u{2B81D}'
    | '\u{2B820}'..'\u{2CEA1}' | '\u{2CEB0}'..'\u{2EBE0}' | '\u{2F800}'..'\u{2FA1D}'
    | '\u{30000}'..'\u{3134A}' | '\u{31350}'..'\u{323AF}' | '\u{E0100}'..'\u{E01EF}'
    ;
// end ID_Continue

fragment Comment_1 : ~'*' ;

fragment StringLiteral_1 : ~( '\'' | '\\' ) ;

fragment Comment_3 : ~( '\n' | '\r' ) ;

fragment Comment_2 : ~'/' ;

fragment GS : [\u001D] ;

fragment FS : [\u001C] ;

fragment CR : [\r] ;

// begin Sc: written by unicode_sets.py
fragment Sc
    : '\u0024' | '\u00A2'..'\u00A5' | '\u058F' | '\u060B' | '\u07FE'..'\u07FF' | '\u09F2'..'\u09F3'
    | '\u09FB' | '\u0AF1' | '\u0BF9' | '\u0E3F' | '\u17DB' | '\u20A0'..'\u20C0' | '\uA838'
    | '\uFDFC' | '\uFE69' | '\uFF04' | '\uFFE0'..'\uFFE1' | '\uFFE5'..'\uFFE6'
    | '\u{11FDD}'..'\u{11FE0}' | '\u{1E2FF}' | '\u{1ECB0}'
    ;
// end Sc

fragment SPACE : [ ] ;

// begin Pc: written by unicode_sets.py
fragment Pc
    : '\u005F' | '\u203F'..'\u2040' | '\u2054' | '\uFE33'..'\uFE34' | '\uFE4D'..'\uFE4F' | '\uFF3F'
    ;
// end Pc

fragment TAB : [\t] ;

fragment StringLiteral_0 : ~( '"' | '\\' ) ;

fragment LF : [\n] ;

fragment VT : [\u000B] ;

fragment US : [\u001F] ;

// begin ID_Start: written by unicode_sets.py
fragment ID_Start
    : '\u0041'..'\u005A' | '\u0061'..'\u007A' | '\u00AA' | '\u00B5' | '\u00BA' | '\u00C0'..'\u00D6'
    | '\u00D8'..'\u00F6' | '\u00F8'..'\u02C1' | '\u02C6'..'\u02D1' | '\u02E0'..'\u02E4' | '\u02EC'
    | '\u02EE' | '\u0370'..'\u0374' | '\u0376'..'\u0377' | '\u037A'..'\u037D' | '\u037F' | '\u0386'
    | '\u0388'..'\u038A' | '\u038C' | '\u038E'..'\u03A1' | '\u03A3'..'\u03F5' | '\u03F7'..'\u0481'
    | '\u048A'..'\u052F' | '\u0531'..'\u0556' | '\u0559' | '\u0560'..'\u0588' | '\u05D0'..'\u05EA'
    | '\u05EF'..'\u05F2' | '\u0620'..'\u064A' | '\u066E'..'\u066F' | '\u0671'..'\u06D3' | '\u06D5'
    | '\u06E5'..'\u06E6' | '\u06EE'..'\u06EF' | '\u06FA'..'\u06FC' | '\u06FF' | '\u0710'
    | '\u0712'..'\u072F' | '\u074D'..'\u07A5' | '\u07B1' | '\u07CA'..'\u07EA' | '\u07F4'..'\u07F5'
    | '\u07FA' | '\u0800'..'\u0815' | '\u081A' | '\u0824' | '\u0828' | '\u0840'..'\u0858'
    | '\u0860'..'\u086A' | '\u0870'..'\u0887' | '\u0889'..'\u088E' | '\u08A0'..'\u08C9'
    | '\u0904'..'\u0939' | '\u093D' | '\u0950' | '\u0958'..'\u0961' | '\u0971'..'\u0980'
    | '\u0985'..'\u098C' | '\u098F'..'\u0990' | '\u0993'..'\u09A8' | '\u09AA'..'\u09B0' | '\u09B2'
    | '\u09B6'..'\u09B9' | '\u09BD' | '\u09CE' | '\u09DC'..'\u09DD' | '\u09DF'..'\u09E1'
    | '\u09F0'..'\u09F1' | '\u09FC' | '\u0A05'..'\u0A0A' | '\u0A0F'..'\u0A10' | '\u0A13'..'\u0A28'
    | '\u0A2A'..'\u0A30' | '\u0A32'..'\u0A33' | '\u0A35'..'\u0A36' | '\u0A38'..'\u0A39'
    | '\u0A59'..'\u0A5C' | '\u0A5E' | '\u0A72'..'\u0A74' | '\u0A85'..'\u0A8D' | '\u0A8F'..'\u0A91'
    | '\u0A93'..'\u0AA8' | '\u0AAA'..'\u0AB0' | '\u0AB2'..'\u0AB3' | '\u0AB5'..'\u0AB9' | '\u0ABD'
    | '\u0AD0' | '\u0AE0'..'\u0AE1' | '\u0AF9' | '\u0B05'..'\u0B0C' | '\u0B0F'..'\u0B10'
    | '\u0B13'..'\u0B28' | '\u0B2A'..'\u0B30' | '\u0B32'..'\u0B33' | '\u0B35'..'\u0B39' | '\u0B3D'
    | '\u0B5C'..'\u0B5D' | '\u0B5F'..'\u0B61' | '\u0B71' | '\u0B83' | '\u0B85'..'\u0B8A'
    | '\u0B8E'..'\u0B90' | '\u0B92'..'\u0B95' | '\u0B99'..'\u0B9A' | '\u0B9C' | '\u0B9E'..'\u0B9F'
    | '\u0BA3'..'\u0BA4' | '\u0BA8'..'\u0BAA' | '\u0BAE'..'\u0BB9' | '\u0BD0' | '\u0C05'..'\u0C0C'
    | '\u0C0E'..'\u0C10' | '\u0C12'..'\u0C28' | '\u0C2A'..'\u0C39' | '\u0C3D' | '\u0C58'..'\u0C5A'
    | '\u0C5D' | '\u0C60'..'\u0C61' | '\u0C80' | '\u0C85'..'\u0C8C' | '\u0C8E'..'\u0C90'
    | '\u0C92'..'\u0CA8' | '\u0CAA'..'\u0CB3' | '\u0CB5'..'\u0CB9' | '\u0CBD' | '\u0CDD'..'\u0CDE'
    | '\u0CE0'..'\u0CE1' | '\u0CF1'..'\u0CF2' | '\u0D04'..'\u0D0C' | '\u0D0E'..'\u0D10'
    | '\u0D12'..'\u0D3A' | '\u0D3D' | '\u0D4E' | '\u0D54'..'\u0D56' | '\u0D5F'..'\u0D61'
    | '\u0D7A'..'\u0D7F' | '\u0D85'..'\u0D96' | '\u0D9A'..'\u0DB1' | '\u0DB3'..'\u0DBB' | '\u0DBD'
    | '\u0DC0'..'\u0DC6' | '\u0E01'..'\u0E30' | '\u0E32'..'\u0E33' | '\u0E40'..'\u0E46'
    | '\u0E81'..'\u0E82' | '\u0E84' | '\u0E86'..'\u0E8A' | '\u0E8C'..'\u0EA3' | '\u0EA5'
    | '\u0EA7'..'\u0EB0' | '\u0EB2'..'\u0EB3' | '\u0EBD' | '\u0EC0'..'\u0EC4' | '\u0EC6'
    | '\u0EDC'..'\u0EDF' | '\u0F00' | '\u0F40'..'\u0F47' | '\u0F49'..'\u0F6C' | '\u0F88'..'\u0F8C'
    | '\u1000'..'\u102A' | '\u103F' | '\u1050'..'\u1055' | '\u105A'..'\u105D' | '\u1061'
    | '\u1065'..'\u1066' | '\u106E'..'\u1070' | '\u1075'..'\u1081' | '\u108E' | '\u10A0'..'\u10C5'
    | '\u10C7' | '\u10CD' | '\u10D0'..'\u10FA' | '\u10FC'..'\u1248' | '\u124A'..'\u124D'
    | '\u1250'..'\u1256' | '\u1258' | '\u125A'..'\u125D' | '\u1260'..'\u1288' | '\u128A'..'\u128D'
    | '\u1290'..'\u12B0' | '\u12B2'..'\u12B5' | '\u12B8'..'\u12BE' | '\u12C0' | '\u12C2'..'\u12C5'
    | '\u12C8'..'\u12D6' | '\u12D8'..'\u1310' | '\u1312'..'\u1315' | '\u1318'..'\u135A'
    | '\u1380'..'\u138F' | '\u13A0'..'\u13F5' | '\u13F8'..'\u13FD' | '\u1401'..'\u166C'
    | '\u166F'..'\u167F' | '\u1681'..'\u169A' | '\u16A0'..'\u16EA' | '\u16EE'..'\u16F8'
    | '\u1700'..'\u1711' | '\u171F'..'\u1731' | '\u1740'..'\u1751' | '\u1760'..'\u176C'
    | '\u176E'..'\u1770' | '\u1780'..'\u17B3' | '\u17D7' | '\u17DC' | '\u1820'..'\u1878'
    | '\u1880'..'\u18A8' | '\u18AA' | '\u18B0'..'\u18F5' | '\u1900'..'\u191E' | '\u1950'..'\u196D'
    | '\u1970'..'\u1974' | '\u1980'..'\u19AB' | '\u19B0'..'\u19C9' | '\u1A00'..'\u1A16'
    | '\u1A20'..'\u1A54' | '\u1AA7' | '\u1B05'..'\u1B33' | '\u1B45'..'\u1B4C' | '\u1B83'..'\u1BA0'
    | '\u1BAE'..'\u1BAF' | '\u1BBA'..'\u1BE5' | '\u1C00'..'\u1C23' | '\u1C4D'..'\u1C4F'
    | '\u1C5A'..'\u1C7D' | '\u1C80'..'\u1C88' | '\u1C90'..'\u1CBA' | '\u1CBD'..'\u1CBF'
    | '\u1CE9'..'\u1CEC' | '\u1CEE'..'\u1CF3' | '\u1CF5'..'\u1CF6' | '\u1CFA' | '\u1D00'..'\u1DBF'
    | '\u1E00'..'\u1F15' | '\u1F18'..'\u1F1D' | '\u1F20'..'\u1F45' | '\u1F48'..'\u1F4D'
    | '\u1F50'..'\u1F57' | '\u1F59' | '\u1F5B' | '\u1F5D' | '\u1F5F'..'\u1F7D' | '\u1F80'..'\u1FB4'
    | '\u1FB6'..'\u1FBC' | '\u1FBE' | '\u1FC2'..'\u1FC4' | '\u1FC6'..'\u1FCC' | '\u1FD0'..'\u1FD3'
    | '\u1FD6'..'\u1FDB' | '\u1FE0'..'\u1FEC' | '\u1FF2'..'\u1FF4' | '\u1FF6'..'\u1FFC' | '\u2071'
    | '\u207F' | '\u2090'..'\u209C' | '\u2102' | '\u2107' | '\u210A'..'\u2113' | '\u2115'
    | '\u2118'..'\u211D' | '\u2124' | '\u2126' | '\u2128' | '\u212A'..'\u2139' | '\u213C'..'\u213F'
    | '\u2145'..'\u2149' | '\u214E' | '\u2160'..'\u2188' | '\u2C00'..'\u2CE4' | '\u2CEB'..'\u2CEE'
    | '\u2CF2'..'\u2CF3' | '\u2D00'..'\u2D25' | '\u2D27' | '\u2D2D' | '\u2D30'..'\u2D67' | '\u2D6F'
    | '\u2D80'..'\u2D96' | '\u2DA0'..'\u2DA6' | '\u2DA8'..'\u2DAE' | '\u2DB0'..'\u2DB6'
    | '\u2DB8'..'\u2DBE' | '\u2DC0'..'\u2DC6' | '\u2DC8'..'\u2DCE' | '\u2DD0'..'\u2DD6'
    | '\u2DD8'..'\u2DDE' | '\u3005'..'\u3007' | '\u3021'..'\u3029' | '\u3031'..'\u3035'
    | '\u3038'..'\u303C' | '\u3041'..'\u3096' | '\u309B'..'\u309F' | '\u30A1'..'\u30FA'
    | '\u30FC'..'\u30FF' | '\u3105'..'\u312F' | '\u3131'..'\u318E' | '\u31A0'..'\u31BF'
    | '\u31F0'..'\u31FF' | '\u3400'..'\u4DBF' | '\u4E00'..'\uA48C' | '\uA4D0'..'\uA4FD'
    | '\uA500'..'\uA60C' | '\uA610'..'\uA61F' | '\uA62A'..'\uA62B' | '\uA640'..'\uA66E'
    | '\uA67F'..'\uA69D' | '\uA6A0'..'\uA6EF' | '\uA717'..'\uA71F' | '\uA722'..'\uA788'
    | '\uA78B'..'\uA7CA' | '\uA7D0'..'\uA7D1' | '\uA7D3' | '\uA7D5'..'\uA7D9' | '\uA7F2'..'\uA801'
    | '\uA803'..'\uA805' | '\uA807'..'\uA80A' | '\uA80C'..'\uA822' | '\uA840'..'\uA873'
    | '\uA882'..'\uA8B3' | '\uA8F2'..'\uA8F7' | '\uA8FB' | '\uA8FD'..'\uA8FE' | '\uA90A'..'\uA925'
    | '\uA930'..'\uA946' | '\uA960'..'\uA97C' | '\uA984'..'\uA9B2' | '\uA9CF' | '\uA9E0'..'\uA9E4'
    | '\uA9E6'..'\uA9EF' | '\uA9FA'..'\uA9FE' | '\uAA00'..'\uAA28' | '\uAA40'..'\uAA42'
    | '\uAA44'..'\uAA4B' | '\uAA60'..'\uAA76' | '\uAA7A' | '\uAA7E'..'\uAAAF' | '\uAAB1'
    | '\uAAB5'..'\uAAB6' | '\uAAB9'..'\uAABD' | '\uAAC0' | '\uAAC2' | '\uAADB'..'\uAADD'
    | '\uAAE0'..'\uAAEA' | '\uAAF2'..'\uAAF4' | '\uAB01'..'\uAB06' | '\uAB09'..'\uAB0E'
    | '\uAB11'..'\uAB16' | '\uAB20'..'\uAB26' | '\uAB28'..'\uAB2E' | '\uAB30'..'\uAB5A'
    | '\uAB5C'..'\uAB69' | '\uAB70'..'\uABE2' | '\uAC00'..'\uD7A3' | '\uD7B0'..'\uD7C6'
    | '\uD7CB'..'\uD7FB' | '\uF900'..'\uFA6D' | '\uFA70'..'\uFAD9' | '\uFB00'..'\uFB06'
    | '\uFB13'..'\uFB17' | '\uFB1D' | '\uFB1F'..'\uFB28' | '\uFB2A'..'\uFB36' | '\uFB38'..'\uFB3C'
    | '\uFB3E' | '\uFB40'..'\uFB41' | '\uFB43'..'\uFB44' | '\uFB46'..'\uFBB1' | '\uFBD3'..'\uFD3D'
    | '\uFD50'..'\uFD8F' | '\uFD92'..'\uFDC7' | '\uFDF0'..'\uFDFB' | '\uFE70'..'\uFE74'
    | '\uFE76'..'\uFEFC' | '\uFF21'..'\uFF3A' | '\uFF41'..'\uFF5A' | '\uFF66'..'\uFFBE'
    | '\uFFC2'..'\uFFC7' | '\uFFCA'..'\uFFCF' | '\uFFD2'..'\uFFD7' | '\uFFDA'..'\uFFDC'
    | '\u{10000}'..'\u{1000B}' | '\u{1000D}'..'\u{10026}' | '\u{10028}'..'\u{1003A}'
    | '\u{1003C}'..'\u{1003D}' | '\u{1003F}'..'\u{1004D}' | '\u{10050}'..'\u{1005D}'
    | '\u{10080}'..'\u{100FA}' | '\u{10140}'..'\u{10174}' | '\u{10280}'..'\u{1029C}'
    | '\u{102A0}'..'\u{102D0}' | '\u{10300}'..'\u{1031F}' | '\u{1032D}'..'\u{1034A}'
    | '\u{10350}'..'\u{10375}' | '\u{10380}'..'\u{1039D}' | '\u{103A0}'..'\u{103C3}'
    | '\u{103C8}'..'\u{103CF}' | '\u{103D1}'..'\u{103D5}' | '\u{10400}'..'\u{1049D}'
    | '\u{104B0}'..'\u{104D3}' | '\u{104D8}'..'\u{104FB}' | '\u{10500}'..'\u{10527}'
    | '\u{10530}'..'\u{10563}' | '\u{10570}'..'\u{1057A}' | '\u{1057C}'..'\u{1058A}'
    | '\u{1058C}'..'\u{10592}' | '\u{10594}'..'\u{10595}' | '\u{10597}'..'\u{105A1}'
    | '\u{105A3}'..'\u{105B1}' | '\u{105B3}'..'\u{105B9}' | '\u{105BB}'..'\u{105BC}'
    | '\u{10600}'..'\u{10736}' | '\u{10740}'..'\u{10755}' | '\u{10760}'..'\u{10767}'
    | '\u{10780}'..'\u{10785}' | '\u{10787}'..'\u{107B0}' | '\u{107B2}'..'\u{107BA}'
    | '\u{10800}'..'\u{10805}' | '\u{10808}' | '\u{1080A}'..'\u{10835}' | '\u{10837}'..'\u{10838}'
    | '\u{1083C}' | '\u{1083F}'..'\u{10855}' | '\u{10860}'..'\u{10876}' | '\u{10880}'..'\u{1089E}'
    | '\u{108E0}'..'\u{108F2}' | '\u{108F4}'..'\u{108F5}' | '\u{10900}'..'\u{10915}'
    | '\u{10920}'..'\u{10939}' | '\u{10980}'..'\u{109B7}' | '\u{109BE}'..'\u{109BF}' | '\u{10A00}'
    | '\u{10A10}'..'\u{10A13}' | '\u{10A15}'..'\u{10A17}' | '\u{10A19}'..'\u{10A35}'
    | '\u{10A60}'..'\u{10A7C}' | '\u{10A80}'..'\u{10A9C}' | '\u{10AC0}'..'\u{10AC7}'
    | '\u{10AC9}'..'\u{10AE4}' | '\u{10B00}'..'\u{10B35}' | '\u{10B40}'..'\u{10B55}'
    | '\u{10B60}'..'\u{10B72}' | '\u{10B80}'..'\u{10B91}' | '\u{10C00}'..'\u{10C48}'
    | '\u{10C80}'..'\u{10CB2}' | '\u{10CC0}'..'\u{10CF2}' | '\u{10D00}'..'\u{10D23}'
    | '\u{10E80}'..'\u{10EA9}' | '\u{10EB0}'..'\u{10EB1}' | '\u{10F00}'..'\u{10F1C}' | '\u{10F27}'
    | '\u{10F30}'..'\u{10F45}' | '\u{10F70}'..'\u{10F81}' | '\u{10FB0}'..'\u{10FC4}'
    | '\u{10FE0}'..'\u{10FF6}' | '\u{11003}'..'\u{11037}' | '\u{11071}'..'\u{11072}' | '\u{11075}'
    | '\u{11083}'..'\u{110AF}' | '\u{110D0}'..'\u{110E8}' | '\u{11103}'..'\u{11126}' | '\u{11144}'
    | '\u{11147}' | '\u{11150}'..'\u{11172}' | '\u{11176}' | '\u{11183}'..'\u{111B2}'
    | '\u{111C1}'..'\u{111C4}' | '\u{111DA}' | '\u{111DC}' | '\u{11200}'..'\u{11211}'
    | '\u{11213}'..'\u{1122B}' | '\u{1123F}'..'\u{11240}' | '\u{11280}'..'\u{11286}' | '\u{11288}'
    | '\u{1128A}'..'\u{1128D}' | '\u{1128F}'..'\u{1129D}' | '\u{1129F}'..'\u{112A8}'
    | '\u{112B0}'..'\u{112DE}' | '\u{11305}'..'\u{1130C}' | '\u{1130F}'..'\u{11310}'
    | '\u{11313}'..'\u{11328}' | '\u{1132A}'..'\u{11330}' | '\u{11332}'..'\u{11333}'
    | '\u{11335}'..'\u{11339}' | '\u{1133D}' | '\u{11350}' | '\u{1135D}'..'\u{11361}'
    | '\u{11400}'..'\u{11434}' | '\u{11447}'..'\u{1144A}' | '\u{1145F}'..'\u{11461}'
    | '\u{11480}'..'\u{114AF}' | '\u{114C4}'..'\u{114C5}' | '\u{114C7}' | '\u{11580}'..'\u{115AE}'
    | '\u{115D8}'..'\u{115DB}' | '\u{11600}'..'\u{1162F}' | '\u{11644}' | '\u{11680}'..'\u{116AA}'
    | '\u{116B8}' | '\u{11700}'..'\u{1171A}' | '\u{11740}'..'\u{11746}' | '\u{11800}'..'\u{1182B}'
    | '\u{118A0}'..'\u{118DF}' | '\u{118FF}'..'\u{11906}' | '\u{11909}' | '\u{1190C}'..'\u{11913}'
    | '\u{11915}'..'\u{11916}' | '\u{11918}'..'\u{1192F}' | '\u{1193F}' | '\u{11941}'
    | '\u{119A0}'..'\u{119A7}' | '\u{119AA}'..'\u{119D0}' | '\u{119E1}' | '\u{119E3}' | '\u{11A00}'
    | '\u{11A0B}'..'\u{11A32}' | '\u{11A3A}' | '\u{11A50}' | '\u{11A5C}'..'\u{11A89}' | '\u{11A9D}'
    | '\u{11AB0}'..'\u{11AF8}' | '\u{11C00}'..'\u{11C08}' | '\u{11C0A}'..'\u{11C2E}' | '\u{11C40}'
    | '\u{11C72}'..'\u{11C8F}' | '\u{11D00}'..'\u{11D06}' | '\u{11D08}'..'\u{11D09}'
    | '\u{11D0B}'..'\u{11D30}' | '\u{11D46}' | '\u{11D60}'..'\u{11D65}' | '\u{11D67}'..'\u{11D68}'
    | '\u{11D6A}'..'\u{11D89}' | '\u{11D98}' | '\u{11EE0}'..'\u{11EF2}' | '\u{11F02}'
    | '\u{11F04}'..'\u{11F10}' | '\u{11F12}'..'\u{11F33}' | '\u{11FB0}' | '\u{12000}'..'\u{12399}'
    | '\u{12400}'..'\u{1246E}' | '\u{12480}'..'\u{12543}' | '\u{12F90}'..'\u{12FF0}'
    | '\u{13000}'..'\u{1342F}' | '\u{13441}'..'\u{13446}' | '\u{14400}'..'\u{14646}'
    | '\u{16800}'..'\u{16A38}' | '\u{16A40}'..'\u{16A5E}' | '\u{16A70}'..'\u{16ABE}'
    | '\u{16AD0}'..'\u{16AED}' | '\u{16B00}'..'\u{16B2F}' | '\u{16B40}'..'\u{16B43}'
    | '\u{16B63}'..'\u{16B77}' | '\u{16B7D}'..'\u{16B8F}' | '\u{16E40}'..'\u{16E7F}'
    | '\u{16F00}'..'\u{16F4A}' | '\u{16F50}' | '\u{16F93}'..'\u{16F9F}' | '\u{16FE0}'..'\u{16FE1}'
    | '\u{16FE3}' | '\u{17000}'..'\u{187F7}' | '\u{18800}'..'\u{18CD5}' | '\u{18D00}'..'\u{18D08}'
    | '\u{1AFF0}'..'\u{1AFF3}' | '\u{1AFF5}'..'\u{1AFFB}' | '\u{1AFFD}'..'\u{1AFFE}'
    | '\u{1B000}'..'\u{1B122}' | '\u{1B132}' | '\u{1B150}'..'\u{1B152}' | '\u{1B155}'
    | '\u{1B164}'..'\u{1B167}' | '\u{1B170}'..'\u{1B2FB}' | '\u{1BC00}'..'\u{1BC6A}'
    | '\u{1BC70}'..'\u{1BC7C}' | '\u{1BC80}'..'\u{1BC88}' | '\u{1BC90}'..'\u{1BC99}'
    | '\u{1D400}'..'\u{1D454}' | '\u{1D456}'..'\u{1D49C}' | '\u{1D49E}'..'\u{1D49F}' | '\u{1D4A2}'
    | '\u{1D4A5}'..'\u{1D4A6}' | '\u{1D4A9}'..'\u{1D4AC}' | '\u{1D4AE}'..'\u{1D4B9}' | '\u{1D4BB}'
    | '\u{1D4BD}'..'\u{1D4C3}' | '\u{1D4C5}'..'\u{1D505}' | '\u{1D507}'..'\u{1D50A}'
    | '\u{1D50D}'..'\u{1D514}' | '\u{1D516}'..'\u{1D51C}' | '\u{1D51E}'..'\u{1D539}'
    | '\u{1D53B}'..'\u{1D53E}' | '\u{1D540}'..'\u{1D544}' | '\u{1D546}' | '\u{1D54A}'..'\u{1D550}'
    | '\u{1D552}'..'\u{1D6A5}' | '\u{1D6A8}'..'\u{1D6C0}' | '\u{1D6C2}'..'\u{1D6DA}'
    | '\u{1D6DC}'..'\u{1D6FA}' | '\u{1D6FC}'..'\u{1D714}' | '\u{1D716}'..'\u{1D734}'
    | '\u{1D736}'..'\u{1D74E}' | '\u{1D750}'..'\u{1D76E}' | '\u{1D770}'..'\u{1D788}'
    | '\u{1D78A}'..'\u{1D7A8}' | '\u{1D7AA}'..'\u{1D7C2}' | '\u{1D7C4}'..'\u{1D7CB}'
    | '\u{1DF00}'..'\u{1DF1E}' | '\u{1DF25}'..'\u{1DF2A}' | '\u{1E030}'..'\u{1E06D}'
    | '\u{1E100}'..'\u{1E12C}' | '\u{1E137}'..'\u{1E13D}' | '\u{1E14E}' | '\u{1E290}'..'\u{1E2AD}'
    | '\u{1E2C0}'..'\u{1E2EB}' | '\u{1E4D0}'..'\u{1E4EB}' | '\u{1E7E0}'..'\u{1E7E6}'
    | '\u{1E7E8}'..'\u{1E7EB}' | '\u{1E7ED}'..'\u{1E7EE}' | '\u{1E7F0}'..'\u{1E7FE}'
    | '\u{1E800}'..'\u{1E8C4}' | '\u{1E900}'..'\u{1E943}' | '\u{1E94B}' | '\u{1EE00}'..'\u{1EE03}'
    | '\u{1EE05}'..'\u{1EE1F}' | '\u{1EE21}'..'\u{1EE22}' | '\u{1EE24}' | '\u{1EE27}'
    | '\u{1EE29}'..'\u{1EE32}' | '\u{1EE34}'..'\u{1EE37}' | '\u{1EE39}' | '\u{1EE3B}' | '\u{1EE42}'
    | '\u{1EE47}' | '\u{1EE49}' | '\u{1EE4B}' | '\u{1EE4D}'..'\u{1EE4F}' | '\u{1EE51}'..'\u{1EE52}'
    | '\u{1EE54}' | '\u{1EE57}' | '\u{1EE59}' | '\u{1EE5B}' | '\u{1EE5D}' | '\u{1EE5F}'
    | '\u{1EE61}'..'\u{1EE62}' | '\u{1EE64}' | '\u{1EE67}'..'\u{1EE6A}' | '\u{1EE6C}'..'\u{1EE72}'
    | '\u{1EE74}'..'\u{1EE77}' | '\u{1EE79}'..'\u{1EE7C}' | '\u{1EE7E}' | '\u{1EE80}'..'\u{1EE89}'
    | '\u{1EE8B}'..'\u{1EE9B}' | '\u{1EEA1}'..'\u{1EEA3}' | '\u{1EEA5}'..'\u{1EEA9}'
    | '\u{1EEAB}'..'\u{1EEBB}' | '\u{20000}'..'\u{2A6DF}' | '\u{2A700}'..'\u{2B739}'
    | '\u{2B740}'..'\u{2B81D}' | '\u{2B820}'..'\u{2CEA1}' | '\u{2CEB0}'..'\u{2EBE0}'
    | '\u{2F800}'..'\u{2FA1D}' | '\u{30000}'..'\u{3134A}' | '\u{31350}'..'\u{323AF}'
    ;
// end ID_Start
